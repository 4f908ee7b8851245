#pragma once

#include <string>
#include <string_view>

namespace tidewatch {

/// What some editors put in front of a text to say that it is UTF-8; no part of it.
inline constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// `text` with U+FFFD in the place of whatever is not UTF-8: one for each byte that begins no character, one
/// for each character that breaks off.
[[nodiscard]] std::string repairedUtf8(std::string_view text);

/// A text as valid UTF-8: itself if it is, otherwise its repaired form.
class ValidUtf8 final {
public:
    /// `text` must outlive it.
    explicit ValidUtf8(std::string_view text);
    ValidUtf8(const ValidUtf8&) = delete;
    ValidUtf8& operator=(const ValidUtf8&) = delete;

    [[nodiscard]] std::string_view text() const { return text_; }

private:
    std::string repaired_;
    std::string_view text_;
};

}  // namespace tidewatch
