#include "base/seconds.h"

#include <cstdio>
#include <cstdlib>

namespace tidewatch {

void Seconds::abortOnOverflow() {
    std::fputs("Tidewatch: a counter of seconds overflowed\n", stderr);
    std::abort();
}

}  // namespace tidewatch
