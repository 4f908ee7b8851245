#include <charconv>
#include <cstdio>
#include <string_view>

#include "bench/support/large_record.h"

int main(int argc, char** argv) {
    tidewatch::bench::RecordSize size;
    const std::string_view years = argc == 3 ? argv[2] : "10";
    const auto [end, error] = std::from_chars(years.data(), years.data() + years.size(), size.years);
    if (argc < 2 || argc > 3 || error != std::errc() || *end != '\0') {
        std::fputs("usage: make_large_record DIRECTORY [YEARS]\n", stderr);
        return 2;
    }
    tidewatch::bench::writeLargeRecord(tidewatch::bench::makeLargeRecord(size), argv[1]);
}
