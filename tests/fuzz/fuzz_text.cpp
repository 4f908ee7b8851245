// Possibly invalid UTF-8: repaired, lower-cased, trimmed.

#include <cctype>
#include <string>

#include "base/lower_case.h"
#include "base/trim.h"
#include "core/utf8.h"
#include "tests/fuzz/fuzz_target.h"
#include "tests/fuzz/strict_json.h"

namespace tidewatch::fuzz {
namespace {

void requireRepaired(std::string_view text) {
    const auto repaired = repairedUtf8(text);
    require(isUtf8(repaired), "what is repaired is UTF-8");
    require(repairedUtf8(repaired) == repaired, "what is whole is not repaired");
    require(!isUtf8(text) || repaired == text, "what is UTF-8 stays as it is");
    require(ValidUtf8(text).text() == repaired, "both ways to repair are one");
}

void requireLowerCased(std::string_view text) {
    const auto lower = lowerCased(text);
    require(lowerCased(lower) == lower, "what is in lower case stays");
    require(isUtf8(text) == isUtf8(lower), "what is UTF-8 stays so, and what is not as well");
    // Only the Kelvin sign and the dotted I have an ASCII lower case.
    std::string asciiOnly;
    for (const char c : text) {
        if (static_cast<unsigned char>(c) < 0x80) asciiOnly += static_cast<char>(std::tolower(c));
    }
    std::string lowerAsciiOnly;
    for (const char c : lower) {
        if (static_cast<unsigned char>(c) < 0x80) lowerAsciiOnly += c;
    }
    const bool hasExceptions = text.find("\xE2\x84\xAA") != std::string_view::npos ||
                               text.find("\xC4\xB0") != std::string_view::npos;
    require(hasExceptions || lowerAsciiOnly == asciiOnly, "no letter is lost");
}

void requireTrimmed(std::string_view text) {
    const auto trim = trimmed(text);
    require(trimmed(trim) == trim, "what is trimmed stays");
    require(text.find(trim) != std::string_view::npos, "what is trimmed is a part of the text");
    const auto ofBlanks = trimmedOfBlanks(text);
    require(trimmed(ofBlanks) == trim, "line ends are trimmed on top of blanks");
    require(trimmed("\n " + std::string(text) + "\t\xC2\xA0") == trim,
            "white space around a text says nothing");
    require(isUtf8(text) <= isUtf8(trim), "no character is cut");
}

}  // namespace

void check(std::string_view input) {
    requireRepaired(input);
    requireLowerCased(input);
    requireTrimmed(input);
}

}  // namespace tidewatch::fuzz
