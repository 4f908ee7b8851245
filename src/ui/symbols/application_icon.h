#pragma once

#include <QIcon>
#include <QString>

namespace tidewatch {

/// The icon of an application: a name in the desktop's icon theme or the absolute path of a file. Null if
/// there is none, or it cannot be drawn.
///
/// Also null if the toolkit might open a file that is no regular picture: it would block on a named pipe, or
/// read an endless device. Checks the disk on each call.
[[nodiscard]] QIcon applicationIcon(const QString& name);

}  // namespace tidewatch
