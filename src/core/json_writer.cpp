#include "core/json_writer.h"

#include <fmt/format.h>

#include <iterator>
#include <utility>

#include "core/utf8.h"

namespace tidewatch {

void appendJsonEscaped(std::string& out, std::string_view text) {
    for (const char c : text) {
        switch (c) {
            case '"':
                out += "\\\"";
                break;
            case '\\':
                out += "\\\\";
                break;
            case '/':
                out += "\\/";
                break;
            case '\b':
                out += "\\b";
                break;
            case '\f':
                out += "\\f";
                break;
            case '\n':
                out += "\\n";
                break;
            case '\r':
                out += "\\r";
                break;
            case '\t':
                out += "\\t";
                break;
            default:
                if (mustBeEscapedInJson(c)) {
                    fmt::format_to(std::back_inserter(out), "\\u{:04x}", static_cast<unsigned>(c));
                } else {
                    out += c;
                }
        }
    }
}

JsonWriter& JsonWriter::key(std::string_view name) {
    startMember();
    quote(name);
    text_ += " : ";
    keyWaits_ = true;
    return *this;
}

void JsonWriter::string(std::string_view value) {
    startValue();
    quote(value);
}

void JsonWriter::boolean(bool value) {
    startValue();
    text_ += value ? "true" : "false";
}

void JsonWriter::real(double value) {
    startValue();
    fmt::format_to(std::back_inserter(text_), "{}", value);
}

std::string JsonWriter::take() {
    return std::move(text_);
}

void JsonWriter::begin(char bracket) {
    startValue();
    text_ += bracket;
    memberCounts_.push_back(0);
}

void JsonWriter::end(char bracket) {
    const bool empty = memberCounts_.back() == 0;
    memberCounts_.pop_back();
    if (empty) text_ += '\n';
    startLine();
    text_ += bracket;
}

void JsonWriter::startValue() {
    if (std::exchange(keyWaits_, false) || memberCounts_.empty()) return;
    startMember();
}

void JsonWriter::startMember() {
    if (memberCounts_.back()++ > 0) text_ += ',';
    startLine();
}

void JsonWriter::startLine() {
    text_ += '\n';
    text_.append(2 * memberCounts_.size(), ' ');
}

void JsonWriter::quote(std::string_view value) {
    text_ += '"';
    appendJsonEscaped(text_, ValidUtf8(value).text());
    text_ += '"';
}

}  // namespace tidewatch
