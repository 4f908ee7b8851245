#pragma once

#include <compare>
#include <cstdint>

namespace tidewatch {

/// A whole number of booked seconds. Arithmetic is checked: an overflow aborts the process with a message.
class Seconds final {
public:
    constexpr Seconds() = default;
    constexpr explicit Seconds(std::int64_t count) : count_(count) {}

    [[nodiscard]] constexpr std::int64_t count() const noexcept { return count_; }

    Seconds& operator+=(Seconds other) {
        if (__builtin_add_overflow(count_, other.count_, &count_)) abortOnOverflow();
        return *this;
    }
    Seconds& operator-=(Seconds other) {
        if (__builtin_sub_overflow(count_, other.count_, &count_)) abortOnOverflow();
        return *this;
    }
    [[nodiscard]] friend Seconds operator+(Seconds left, Seconds right) { return left += right; }
    [[nodiscard]] friend Seconds operator-(Seconds left, Seconds right) { return left -= right; }

    constexpr auto operator<=>(const Seconds&) const = default;

private:
    [[noreturn]] static void abortOnOverflow();

    std::int64_t count_ = 0;
};

}  // namespace tidewatch
