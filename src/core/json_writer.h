#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tidewatch {

/// Whether a character between the quotes of a data file stands there escaped: the quote, the backslash, the
/// forward slash and what lies below U+0020.
[[nodiscard]] inline bool mustBeEscapedInJson(char c) {
    return c == '"' || c == '\\' || c == '/' || static_cast<unsigned char>(c) < 0x20;
}

/// Appends a text as it stands between the quotes of a data file; what need not be escaped stands as UTF-8.
void appendJsonEscaped(std::string& out, std::string_view text);

/// Writes JSON in the form of all data files: two blanks of indent a level, one member a line, a blank on
/// both sides of the colon, an empty object or array as its brackets around an empty line, no end of line
/// after the last bracket. Keys stand in the order in which they are given: the caller gives them sorted.
/// Texts that are not UTF-8 are written as their repaired form (see utf8.h).
class JsonWriter final {
public:
    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }

    /// To be followed by the value that stands under it.
    JsonWriter& key(std::string_view name);

    void string(std::string_view value);
    void boolean(bool value);

    /// In the fewest digits that read back the same, a whole number without a fraction. `value` is finite.
    void real(double value);

    /// What has been written; the writer is spent.
    [[nodiscard]] std::string take();

private:
    void begin(char bracket);
    void end(char bracket);
    void startValue();
    void startMember();
    void startLine();
    void quote(std::string_view value);

    std::string text_;
    std::vector<std::size_t> memberCounts_;  // one a bracket that is open
    bool keyWaits_ = false;
};

}  // namespace tidewatch
