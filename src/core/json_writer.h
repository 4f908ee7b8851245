#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tidewatch {

/// Whether a character is escaped in the strings of a data file: the quote, the backslash, the forward slash
/// and characters below U+0020.
[[nodiscard]] inline bool mustBeEscapedInJson(char c) {
    return c == '"' || c == '\\' || c == '/' || static_cast<unsigned char>(c) < 0x20;
}

/// Appends `text` with these characters escaped; everything else is kept as UTF-8.
void appendJsonEscaped(std::string& out, std::string_view text);

/// Writes JSON in the format of all data files: two spaces of indentation per level, one member per line, a
/// space on both sides of the colon, an empty object or array as its brackets around an empty line, no
/// newline at the end. Keys are written in the given order: the caller sorts them. Invalid UTF-8 is written
/// in its repaired form (see utf8.h).
class JsonWriter final {
public:
    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }

    /// Must be followed by the value.
    JsonWriter& key(std::string_view name);

    void string(std::string_view value);
    void boolean(bool value);

    /// In the shortest form that round-trips, an integer without a fraction. `value` must be finite.
    void real(double value);

    /// Returns the text; the writer must not be used afterwards.
    [[nodiscard]] std::string take();

private:
    void begin(char bracket);
    void end(char bracket);
    void startValue();
    void startMember();
    void startLine();
    void quote(std::string_view value);

    std::string text_;
    std::vector<std::size_t> memberCounts_;  // one per open bracket
    bool keyWaits_ = false;
};

}  // namespace tidewatch
