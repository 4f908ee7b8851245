#include "base/seconds.h"

#include <fmt/core.h>

#include <cstdio>
#include <cstdlib>

namespace tidewatch {
namespace {

[[noreturn]] void endOverflown(std::int64_t left, char sign, std::int64_t right) {
    fmt::print(stderr, "Tidewatch: a counter of seconds overflowed: {} {} {}\n", left, sign, right);
    std::abort();
}

}  // namespace

Seconds& Seconds::operator+=(Seconds other) {
    std::int64_t sum = 0;
    if (__builtin_add_overflow(count_, other.count_, &sum)) endOverflown(count_, '+', other.count_);
    count_ = sum;
    return *this;
}

Seconds& Seconds::operator-=(Seconds other) {
    std::int64_t difference = 0;
    if (__builtin_sub_overflow(count_, other.count_, &difference)) endOverflown(count_, '-', other.count_);
    count_ = difference;
    return *this;
}

}  // namespace tidewatch
