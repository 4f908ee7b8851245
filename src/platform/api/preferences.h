#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tidewatch::platform {

/// A persistent map from string keys to typed values. Safe from any thread.
///
/// Reading a value as another type: texts that spell a whole number, a number or "true"/"false" read as
/// that; a number reads as a boolean by being other than 0 and a boolean as 1 or 0; a fraction reads as an
/// integer by truncation; everything else, an absent key included, reads as 0, false or "".
class Preferences {
public:
    virtual ~Preferences() = default;

    /// Tells an absent key from a stored zero.
    [[nodiscard]] virtual bool contains(std::string_view key) const = 0;

    [[nodiscard]] virtual bool boolean(std::string_view key) const = 0;
    [[nodiscard]] virtual std::int64_t integer(std::string_view key) const = 0;
    [[nodiscard]] virtual double real(std::string_view key) const = 0;
    [[nodiscard]] virtual std::string text(std::string_view key) const = 0;

    /// A value written is read back at once and reaches the disk without further ado.
    virtual void setBoolean(std::string_view key, bool value) = 0;
    virtual void setInteger(std::string_view key, std::int64_t value) = 0;
    virtual void setReal(std::string_view key, double value) = 0;
    virtual void setText(std::string_view key, std::string_view value) = 0;

    virtual void remove(std::string_view key) = 0;
};

}  // namespace tidewatch::platform
