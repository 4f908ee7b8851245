#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "base/parse_real.h"

namespace tidewatch::platform {

/// One stored preference with the type it was written with. The functions below implement the conversions of
/// Preferences.
using PreferenceValue = std::variant<bool, std::int64_t, double, std::string>;

namespace preference_detail {

/// Parses the whole of `text` as a decimal integer. Returns nullopt if it is none.
[[nodiscard]] inline std::optional<std::int64_t> spelledInteger(std::string_view text) {
    std::int64_t number{};
    const auto end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stopped != end) return std::nullopt;
    return number;
}

/// Truncated; 0 if out of range for 64 bits.
[[nodiscard]] inline std::int64_t truncated(double real) {
    constexpr double limit = 0x1p63;
    return real >= -limit && real < limit ? static_cast<std::int64_t>(real) : 0;
}

struct AsReal {
    double operator()(bool value) const { return value ? 1 : 0; }
    double operator()(std::int64_t value) const { return static_cast<double>(value); }
    double operator()(double value) const { return value; }
    double operator()(const std::string& value) const {
        if (value == "true") return 1;
        return parseReal(value).value_or(0);
    }
};

struct AsInteger {
    std::int64_t operator()(bool value) const { return value ? 1 : 0; }
    std::int64_t operator()(std::int64_t value) const { return value; }
    std::int64_t operator()(double value) const { return truncated(value); }
    std::int64_t operator()(const std::string& value) const {
        if (const auto whole = spelledInteger(value)) return *whole;
        return truncated(AsReal()(value));
    }
};

}  // namespace preference_detail

[[nodiscard]] inline double asReal(const PreferenceValue& value) {
    return std::visit(preference_detail::AsReal(), value);
}

[[nodiscard]] inline std::int64_t asInteger(const PreferenceValue& value) {
    return std::visit(preference_detail::AsInteger(), value);
}

/// Whether it is not 0; "true" counts as 1.
[[nodiscard]] inline bool asBoolean(const PreferenceValue& value) {
    return asReal(value) != 0;
}

[[nodiscard]] inline std::string asText(const PreferenceValue& value) {
    const auto* text = std::get_if<std::string>(&value);
    return text ? *text : std::string();
}

}  // namespace tidewatch::platform
