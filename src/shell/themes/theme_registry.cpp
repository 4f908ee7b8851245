#include "shell/themes/theme_registry.h"

#include <algorithm>

#include "shell/themes/builtin_themes.h"

namespace tidewatch {

ThemeRegistry::ThemeRegistry()
    : themes_{ochreTheme(), editorialTheme(), minimalTheme(), hackerTheme(), liquidCrystalTheme()} {}

const Theme& ThemeRegistry::theme(std::string_view id) const {
    const auto found = std::ranges::find(themes_, id, &Theme::id);
    return found == themes_.end() ? themes_.front() : *found;
}

}  // namespace tidewatch
