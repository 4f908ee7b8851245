#pragma once

#include <array>
#include <span>
#include <string_view>

#include "shell/themes/theme.h"

namespace tidewatch {

/// The five themes, in the order of the menu. Main thread only.
class ThemeRegistry final {
public:
    ThemeRegistry();

    [[nodiscard]] std::span<const Theme> themes() const { return themes_; }

    /// The theme of this id; the first one if there is none. Lives as long as the registry.
    [[nodiscard]] const Theme& theme(std::string_view id) const;

private:
    std::array<Theme, 5> themes_;
};

}  // namespace tidewatch
