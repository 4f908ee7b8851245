#include "base/uuid.h"

#include <fmt/format.h>

#include <charconv>
#include <cstddef>

namespace tidewatch {
namespace {

constexpr std::size_t canonicalLength = 36;

// The byte positions before which a dash is written.
constexpr bool dashBefore(std::size_t byte) {
    return byte == 4 || byte == 6 || byte == 8 || byte == 10;
}

std::optional<std::uint8_t> hexByte(std::string_view digits) {
    std::uint8_t value = 0;
    const auto* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, value, 16);
    return error == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}

}  // namespace

Uuid Uuid::random(std::uint64_t high, std::uint64_t low) {
    Uuid uuid;
    for (std::size_t i = 0; i < 8; ++i) {
        uuid.bytes_[i] = static_cast<std::uint8_t>(high >> (56 - 8 * i));
        uuid.bytes_[8 + i] = static_cast<std::uint8_t>(low >> (56 - 8 * i));
    }
    uuid.bytes_[6] = static_cast<std::uint8_t>((uuid.bytes_[6] & 0x0F) | 0x40);  // version 4
    uuid.bytes_[8] = static_cast<std::uint8_t>((uuid.bytes_[8] & 0x3F) | 0x80);  // the RFC's variant
    return uuid;
}

std::optional<Uuid> Uuid::parse(std::string_view text) {
    if (text.size() != canonicalLength) return std::nullopt;
    Uuid uuid;
    for (std::size_t i = 0; i < uuid.bytes_.size(); ++i) {
        if (dashBefore(i)) {
            if (text.front() != '-') return std::nullopt;
            text.remove_prefix(1);
        }
        const auto byte = hexByte(text.substr(0, 2));
        if (!byte) return std::nullopt;
        uuid.bytes_[i] = *byte;
        text.remove_prefix(2);
    }
    return uuid;
}

std::string Uuid::text() const {
    std::string result;
    for (std::size_t i = 0; i < bytes_.size(); ++i) {
        fmt::format_to(std::back_inserter(result), "{}{:02X}", dashBefore(i) ? "-" : "", bytes_[i]);
    }
    return result;
}

}  // namespace tidewatch
