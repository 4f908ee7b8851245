#include "platform/freedesktop/desktop_entry.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tidewatch::platform {

namespace {

struct Line {
    std::string_view key;
    std::string_view value;
};

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string_view takeLine(std::string_view& text) {
    const auto line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line;
}

std::vector<Line> linesOfMainGroup(std::string_view text) {
    std::vector<Line> lines;
    bool inMainGroup = false;
    while (!text.empty()) {
        const auto line = trimmed(takeLine(text));
        if (line.starts_with('[')) {
            if (inMainGroup) break;
            inMainGroup = line == "[Desktop Entry]";
        } else if (const auto sign = line.find('='); inMainGroup && sign != std::string_view::npos) {
            if (!line.starts_with('#')) {
                lines.push_back({trimmed(line.substr(0, sign)), trimmed(line.substr(sign + 1))});
            }
        }
    }
    return lines;
}

// Goes through the characters of a value, with "\s" and its like read; `visit(c, escaped)`.
template <class Visitor>
void forEachCharacter(std::string_view value, Visitor&& visit) {
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] != '\\' || i + 1 == value.size()) {
            visit(value[i], false);
            continue;
        }
        constexpr std::string_view letters = "sntr";
        constexpr std::string_view meanings = " \n\t\r";
        const char letter = value[++i];
        const auto known = letters.find(letter);
        visit(known == std::string_view::npos ? letter : meanings[known], true);
    }
}

std::string unescapedValue(std::string_view value) {
    std::string result;
    forEachCharacter(value, [&](char c, bool) { result += c; });
    return result;
}

std::vector<std::string> unescapedList(std::string_view value) {
    std::vector<std::string> items;
    std::string item;
    const auto finish = [&] {
        if (!item.empty()) items.push_back(std::exchange(item, {}));
    };
    forEachCharacter(value, [&](char c, bool escaped) {
        if (c == ';' && !escaped) {
            finish();
        } else {
            item += c;
        }
    });
    finish();
    return items;
}

std::optional<std::string_view> valueOf(const std::vector<Line>& lines, std::string_view key) {
    const auto line = std::ranges::find(lines, key, &Line::key);
    return line == lines.end() ? std::nullopt : std::optional(line->value);
}

std::optional<std::string_view> spanishName(const std::vector<Line>& lines, std::string_view locale) {
    if (locale.starts_with("es_")) {
        const auto country = locale.substr(0, locale.find_first_of(".@"));
        if (const auto name = valueOf(lines, "Name[" + std::string(country) + "]")) return name;
    }
    if (const auto name = valueOf(lines, "Name[es]")) return name;
    const auto any = std::ranges::find_if(lines, [](const Line& l) { return l.key.starts_with("Name[es_"); });
    return any == lines.end() ? std::nullopt : std::optional(any->value);
}

}  // namespace

std::optional<ApplicationInfo> parseDesktopEntry(std::string_view text, std::string_view locale) {
    const auto lines = linesOfMainGroup(text);
    if (lines.empty() || valueOf(lines, "Hidden") == "true") return std::nullopt;
    const auto plain = [&](std::string_view key) { return valueOf(lines, key).value_or(""); };
    return ApplicationInfo{unescapedValue(spanishName(lines, locale).value_or(plain("Name"))),
                           unescapedValue(plain("Icon")), unescapedList(plain("Categories"))};
}

}  // namespace tidewatch::platform
