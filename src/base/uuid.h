#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tidewatch {

/// A universally unique identifier (RFC 9562).
class Uuid final {
public:
    /// The nil identifier.
    constexpr Uuid() = default;

    /// A random identifier (version 4) from 128 random bits, of which six are overwritten.
    [[nodiscard]] static Uuid random(std::uint64_t high, std::uint64_t low);

    /// Parses the canonical form of 36 characters in either letter case. Returns nullopt for any other form.
    [[nodiscard]] static std::optional<Uuid> parse(std::string_view text);

    /// The canonical form, in upper case.
    [[nodiscard]] std::string text() const;

    bool operator==(const Uuid&) const = default;
    // Spelled out, since not every standard library has operator<=> for arrays.
    std::strong_ordering operator<=>(const Uuid&) const = default;

private:
    std::array<std::uint8_t, 16> bytes_{};
};

}  // namespace tidewatch
