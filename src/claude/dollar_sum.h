#pragma once

#include <compare>

namespace tidewatch {

/// A sum of amounts in US dollars that does not depend on their order: amounts are added as integers, in
/// units far smaller than the rounding of any double from a millionth of a dollar up.
class DollarSum final {
public:
    /// `dollars` must be finite and below 10^15 in magnitude.
    void add(double dollars) { units_ += static_cast<Units>(dollars * unitsPerDollar); }
    void add(const DollarSum& other) { units_ += other.units_; }

    [[nodiscard]] double dollars() const { return static_cast<double>(units_) / unitsPerDollar; }

    bool operator==(const DollarSum&) const = default;

private:
    __extension__ using Units = __int128;
    static constexpr double unitsPerDollar = 0x1p60;

    Units units_ = 0;
};

}  // namespace tidewatch
