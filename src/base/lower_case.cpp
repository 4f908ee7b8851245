#include "base/lower_case.h"

#include <algorithm>
#include <array>
#include <cwchar>
#include <locale>
#include <stdexcept>

namespace tidewatch {
namespace {

using WideCharacters = std::ctype<wchar_t>;
using Utf8 = std::codecvt<wchar_t, char, std::mbstate_t>;

// The C library's own letters, which do not depend on the user's language. Without them only those of ASCII
// have two forms.
std::locale lettersOfUnicode() {
    try {
        return std::locale("C.UTF-8");
    } catch (const std::runtime_error&) {
        return std::locale::classic();
    }
}

bool isAscii(std::string_view text) {
    return std::ranges::all_of(text, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

std::string lowerCasedAscii(std::string_view text) {
    std::string result(text);
    for (auto& byte : result) {
        if (byte >= 'A' && byte <= 'Z') byte = static_cast<char>(byte - 'A' + 'a');
    }
    return result;
}

// Takes the first character off `text`, which is not empty.
std::string takeLowerCased(std::string_view& text, const WideCharacters& letters, const Utf8& utf8) {
    std::mbstate_t state{};
    wchar_t character = 0;
    const char* rest = nullptr;
    wchar_t* decodedEnd = nullptr;
    utf8.in(state, text.data(), text.data() + text.size(), rest, &character, &character + 1, decodedEnd);
    // A character that breaks off before a zero byte is taken for that byte.
    const bool swallowed = character == 0 && text.front() != '\0';
    const bool decoded = decodedEnd == &character + 1 && !swallowed;
    const auto size = decoded ? static_cast<std::size_t>(rest - text.data()) : 1;
    const auto original = text.substr(0, size);
    text.remove_prefix(size);
    if (!decoded) return std::string(original);

    const auto lower = letters.tolower(character);
    std::array<char, 8> encoded{};
    const wchar_t* read = nullptr;
    char* encodedEnd = nullptr;
    state = {};
    utf8.out(state, &lower, &lower + 1, read, encoded.data(), encoded.data() + encoded.size(), encodedEnd);
    return read == &lower + 1 ? std::string(encoded.data(), encodedEnd) : std::string(original);
}

}  // namespace

std::string lowerCased(std::string_view text) {
    if (isAscii(text)) return lowerCasedAscii(text);
    static const auto locale = lettersOfUnicode();
    const auto& letters = std::use_facet<WideCharacters>(locale);
    const auto& utf8 = std::use_facet<Utf8>(locale);
    std::string result;
    while (!text.empty()) result += takeLowerCased(text, letters, utf8);
    return result;
}

}  // namespace tidewatch
