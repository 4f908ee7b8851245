#pragma once

#include <QFileInfo>
#include <QString>
#include <QStringList>

namespace tidewatch {

/// Whether the toolkit can open the picture without harm: a regular file of some megabytes at most, be it at
/// the end of a link, that refers to no other file; and so are those beside it that it takes on a denser
/// screen ("name@2x.png").
[[nodiscard]] bool pictureCanBeOpened(const QFileInfo& picture);

/// What the toolkit may open when it looks for an icon by name: pictures in the folders of its theme, of the
/// themes that this one inherits from and of those that it falls back to, and the files that tell it of
/// these. It opens whatever has the right name, and would wait for ever for a named pipe. As it stands on the
/// disk when the object is made, and as it is when asked.
class IconThemeFiles final {
public:
    IconThemeFiles();

    /// Whether all that may be opened for an icon of this name can be. A longer name stands for shorter ones,
    /// too: the toolkit cuts it at its dashes until there is such an icon.
    [[nodiscard]] bool canBeOpened(const QString& name) const;

private:
    void addTheme(const QString& name);
    void addFolder(const QString& path);
    [[nodiscard]] QStringList readIndex(const QString& place);
    void addParents(QString names);

    QStringList themes_;
    QStringList folders_;  // where pictures may be, each with a slash at its end
    bool canBeRead_ = true;
};

}  // namespace tidewatch
