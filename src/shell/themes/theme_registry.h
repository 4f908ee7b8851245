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

    /// The theme with this id, or the first one if unknown. Valid for the registry's lifetime.
    [[nodiscard]] const Theme& theme(std::string_view id) const;

private:
    std::array<Theme, 5> themes_;
};

}  // namespace tidewatch
