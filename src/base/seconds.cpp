#include "base/seconds.h"

#include <fmt/core.h>

#include <cstdio>
#include <cstdlib>

namespace tidewatch {

Seconds& Seconds::operator+=(Seconds other) {
    std::int64_t sum = 0;
    if (__builtin_add_overflow(count_, other.count_, &sum)) {
        fmt::print(stderr, "Tidewatch: a counter of seconds overflowed: {} + {}\n", count_, other.count_);
        std::abort();
    }
    count_ = sum;
    return *this;
}

}  // namespace tidewatch
