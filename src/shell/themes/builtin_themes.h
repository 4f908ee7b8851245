#pragma once

#include "shell/themes/theme.h"

namespace tidewatch {

[[nodiscard]] Theme ochreTheme();
[[nodiscard]] Theme editorialTheme();
[[nodiscard]] Theme minimalTheme();
[[nodiscard]] Theme hackerTheme();
[[nodiscard]] Theme liquidCrystalTheme();

}  // namespace tidewatch
