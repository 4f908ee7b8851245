#pragma once

#include <QFont>
#include <QString>

#include "shell/themes/font_spec.h"

namespace tidewatch {

/// Registers for this process every file ".ttf" of the folder "Fonts" in the program's resources. What
/// cannot be registered is passed over: text then falls to the desktop's own families. To be called once,
/// before the first view. Gives the number of files registered.
int registerFonts();
int registerFonts(const QString& folder);

/// Where the program's own fonts lie: beside the program, or where an installation puts its data.
[[nodiscard]] QString fontsFolder();

/// The font on this machine, with the families to fall back on; unhinted, so that it looks and measures the
/// same at every scale. The toolkit has whole pixels only: a fraction is rounded, and is to be had by drawing
/// a larger font smaller.
[[nodiscard]] QFont toQFont(const FontSpec& spec);

/// The brand's monospaced font in the cuts that the brand uses (light, medium and semibold; every other
/// weight is the regular one); the desktop's own monospaced font of that weight where it is missing.
[[nodiscard]] QFont monoNSFont(double size, FontWeight weight);

}  // namespace tidewatch
