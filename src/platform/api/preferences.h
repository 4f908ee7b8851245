#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tidewatch::platform {

/// A persistent map from string keys to typed values. Thread-safe.
///
/// Conversions when a value is read as another type: strings that contain an integer, a number or
/// "true"/"false" are parsed; a number is true if it is not 0, a boolean is 1 or 0; a fraction is truncated
/// to an integer; everything else, including a missing key, reads as 0, false or "".
class Preferences {
public:
    virtual ~Preferences() = default;

    /// Distinguishes a missing key from a stored zero.
    [[nodiscard]] virtual bool contains(std::string_view key) const = 0;

    [[nodiscard]] virtual bool boolean(std::string_view key) const = 0;
    [[nodiscard]] virtual std::int64_t integer(std::string_view key) const = 0;
    [[nodiscard]] virtual double real(std::string_view key) const = 0;
    [[nodiscard]] virtual std::string text(std::string_view key) const = 0;

    /// A written value can be read back immediately and is persisted automatically.
    virtual void setBoolean(std::string_view key, bool value) = 0;
    virtual void setInteger(std::string_view key, std::int64_t value) = 0;
    virtual void setReal(std::string_view key, double value) = 0;
    virtual void setText(std::string_view key, std::string_view value) = 0;

    virtual void remove(std::string_view key) = 0;
};

}  // namespace tidewatch::platform
