#pragma once

#include <QFont>
#include <QString>

#include "shell/themes/font_spec.h"

namespace tidewatch {

/// Registers every .ttf file in the folder "Fonts" of the program's resources for this process. Files that
/// cannot be registered are ignored: text then uses the fallback families. Must be called once, before the
/// first view. Returns the number of registered files.
int registerFonts();
int registerFonts(const QString& folder);

/// The folder of the program's fonts: beside the program, or in the installed data directory.
[[nodiscard]] QString fontsFolder();

/// The font with its fallback families; unhinted, so that its appearance and metrics are the same at every
/// scale. The toolkit has whole pixel sizes only: fractions are rounded; scale the painter for others.
[[nodiscard]] QFont toQFont(const FontSpec& spec);

/// The brand's monospaced font in the weights that the brand uses (light, medium and semibold; regular for
/// any other); the desktop's monospaced font of that weight if it is missing.
[[nodiscard]] QFont monoNSFont(double size, FontWeight weight);

}  // namespace tidewatch
