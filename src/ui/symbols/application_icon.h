#pragma once

#include <QIcon>
#include <QString>

namespace tidewatch {

/// The picture of an application: a name of the desktop's icon theme or the absolute path of a file. Null if
/// there is none, or nothing that can be drawn.
///
/// There is none, either, where the toolkit might open something on the way that is no picture: it would wait
/// for ever for a named pipe, or draw from a device without an end. Looks at the disk each time.
[[nodiscard]] QIcon applicationIcon(const QString& name);

}  // namespace tidewatch
