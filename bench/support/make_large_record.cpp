#include <cstdio>

#include "bench/support/large_record.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: make_large_record DIRECTORY\n", stderr);
        return 2;
    }
    tidewatch::bench::writeLargeRecord(tidewatch::bench::makeLargeRecord({}), argv[1]);
}
