#pragma once

#include <QFileInfo>
#include <QString>
#include <QStringList>

namespace tidewatch {

/// Whether a picture is safe to open: a regular file of at most some megabytes, following links, that refers
/// to no other file, and likewise its high-density variants ("name@2x.png").
[[nodiscard]] bool pictureCanBeOpened(const QFileInfo& picture);

/// The files that the toolkit may open when it looks up an icon by name: pictures in the folders of its
/// theme, of inherited and of fallback themes, and these themes' index files. It opens anything with the
/// right name, and would block on a named pipe. Themes are read at construction, files are checked on each
/// call.
class IconThemeFiles final {
public:
    IconThemeFiles();

    /// Whether all files for an icon name are safe to open, including those for shorter names: the toolkit
    /// removes dash-separated suffixes until it finds an icon.
    [[nodiscard]] bool canBeOpened(const QString& name) const;

private:
    void addTheme(const QString& name);
    void addFolder(const QString& path);
    [[nodiscard]] QStringList readIndex(const QString& place);
    void addParents(QString names);

    QStringList themes_;
    QStringList folders_;  // where pictures may be, each with a trailing slash
    bool canBeRead_ = true;
};

}  // namespace tidewatch
