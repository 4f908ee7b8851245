#pragma once

#include <QString>
#include <functional>

#include "shell/surfaces.h"
#include "shell/themes/dashboard_style.h"

class QFileDialog;

namespace tidewatch {

/// Asks where a file is to be written, starting in `folder`; `accepted` gets the absolute path. Returns at
/// once. The dialog is the desktop's own where it offers one, else the toolkit's in the colours of the theme.
/// It deletes itself when it is answered. The proposed name is shortened to what a file can be called; what
/// then stands in the field is the file's name, whatever letters it has, with the extension of the kind.
QFileDialog* presentSaveDialog(const SaveRequest& request, const QString& folder, const DashboardStyle& style,
                               std::function<void(const QString& path)> accepted);

}  // namespace tidewatch
