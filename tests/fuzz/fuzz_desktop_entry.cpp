// Desktop entries, which any package or program may install.

#include <algorithm>
#include <string>

#include "platform/freedesktop/desktop_entry.h"
#include "tests/fuzz/fuzz_target.h"

namespace tidewatch::fuzz {
namespace {

using platform::ApplicationInfo;
using platform::parseDesktopEntry;

bool same(const std::optional<ApplicationInfo>& one, const std::optional<ApplicationInfo>& other) {
    if (!one || !other) return one.has_value() == other.has_value();
    return one->name == other->name && one->icon == other->icon && one->categories == other->categories;
}

std::string withWideLineEnds(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == '\n') result += '\r';
        result += c;
    }
    return result;
}

}  // namespace

void check(std::string_view input) {
    const auto end = std::min(input.find('\n'), input.size());
    const auto locale = input.substr(0, end);
    const auto text = input.substr(std::min(end + 1, input.size()));
    const auto entry = parseDesktopEntry(text, locale);
    if (text.find("[Desktop Entry]") == std::string_view::npos) {
        require(!entry, "a text without the group is no entry");
    }
    if (entry) {
        require(std::ranges::none_of(entry->categories, &std::string::empty),
                "no category is without a name");
    }
    require(same(entry, parseDesktopEntry("# a remark\n" + std::string(text), locale)),
            "remarks say nothing");
    require(same(entry, parseDesktopEntry(withWideLineEnds(text), locale)), "both kinds of line end are one");
    require(same(entry, parseDesktopEntry(std::string(text) + "\n[Desktop Action new]\nName=New\nHidden=true",
                                          locale)),
            "what stands in another group says nothing");
}

}  // namespace tidewatch::fuzz
