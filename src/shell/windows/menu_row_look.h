#pragma once

#include <QFont>
#include <QIcon>
#include <QKeySequence>
#include <QString>
#include <string>

#include "shell/menu_row.h"

namespace tidewatch {

/// The title of a menu row on one line of bounded width, never empty. An ampersand is an ampersand.
[[nodiscard]] QString menuTitle(const std::string& title, const QFont& font);

/// A round dot of one colour, on request with a check mark on it.
[[nodiscard]] QIcon menuSwatch(const RgbColor& color, bool checked);

/// Ctrl and the key equivalent of a row.
[[nodiscard]] QKeySequence menuShortcut(char keyEquivalent);

}  // namespace tidewatch
