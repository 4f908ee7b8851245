#include "base/lower_case.h"

#include <utf8proc.h>

#include <algorithm>
#include <array>

namespace tidewatch {
namespace {

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

// Removes the first character of `text`, which must not be empty.
std::string takeLowerCased(std::string_view& text) {
    utf8proc_int32_t character = -1;
    const auto size = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                                       static_cast<utf8proc_ssize_t>(text.size()), &character);
    const auto original = text.substr(0, size > 0 ? static_cast<std::size_t>(size) : 1);
    text.remove_prefix(original.size());
    if (size <= 0) return std::string(original);

    std::array<utf8proc_uint8_t, 4> encoded{};
    const auto length = utf8proc_encode_char(utf8proc_tolower(character), encoded.data());
    return {reinterpret_cast<const char*>(encoded.data()), static_cast<std::size_t>(length)};
}

}  // namespace

std::string lowerCased(std::string_view text) {
    if (isAscii(text)) return lowerCasedAscii(text);
    std::string result;
    while (!text.empty()) result += takeLowerCased(text);
    return result;
}

}  // namespace tidewatch
