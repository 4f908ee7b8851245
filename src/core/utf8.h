#pragma once

#include <string>
#include <string_view>

namespace tidewatch {

/// The byte order mark that some editors put at the start of UTF-8 files.
inline constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// `text` with invalid UTF-8 replaced by U+FFFD: one for each invalid byte, one for each truncated sequence.
[[nodiscard]] std::string repairedUtf8(std::string_view text);

/// A text as valid UTF-8: unchanged if valid, otherwise repaired.
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
