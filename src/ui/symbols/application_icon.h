#pragma once

#include <QIcon>
#include <QString>

namespace tidewatch {

/// The picture of an application: a name of the desktop's icon theme or the absolute path of a file. Null if
/// there is none, or nothing that can be drawn.
///
/// The toolkit opens whatever has the right name, and would wait for ever for a named pipe or draw from a
/// device without an end. So a picture must be a regular file of some megabytes at most, and one that refers
/// to further files must bring them with it. Of the theme, the folders in which applications put their
/// pictures are looked through before the toolkit looks there.
[[nodiscard]] QIcon applicationIcon(const QString& name);

}  // namespace tidewatch
