#pragma once

#include <QString>
#include <functional>

#include "shell/surfaces.h"
#include "shell/themes/dashboard_style.h"

class QFileDialog;

namespace tidewatch {

/// Asks for the path of a file to write, starting in `folder`; `accepted` gets the absolute path.
/// Asynchronous. Uses the desktop's dialog if available, else the toolkit's in the theme's colours. Deletes
/// itself when answered. The proposed name is shortened to a valid file name; the field's text is taken
/// literally as the file's name, with the extension of the kind.
QFileDialog* presentSaveDialog(const SaveRequest& request, const QString& folder, const DashboardStyle& style,
                               std::function<void(const QString& path)> accepted);

}  // namespace tidewatch
