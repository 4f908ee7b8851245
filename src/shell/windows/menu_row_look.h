#pragma once

#include <QFont>
#include <QIcon>
#include <QKeySequence>
#include <QString>
#include <string>
#include <string_view>

#include "shell/menu_row.h"
#include "shell/windows/menu_style.h"

namespace tidewatch {

/// The title of a menu row on one line of bounded width, never empty. An ampersand is an ampersand.
[[nodiscard]] QString menuTitle(const std::string& title, const QFont& font);

/// A round dot of one colour, on request with a check mark on it.
[[nodiscard]] QIcon menuSwatch(const RgbColor& color, bool checked);

/// A symbol of the symbol table, on request cut out of a plate, as the mark of a checked row. Null for an
/// unknown name.
[[nodiscard]] QIcon menuSymbol(std::string_view name, const MenuInk& ink, bool checked);

/// Ctrl and the key equivalent of a row.
[[nodiscard]] QKeySequence menuShortcut(char keyEquivalent);

}  // namespace tidewatch
