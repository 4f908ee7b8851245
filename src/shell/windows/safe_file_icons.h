#pragma once

#include <QFileIconProvider>

#include "ui/symbols/icon_theme_files.h"

namespace tidewatch {

/// The pictures of files and folders as the desktop's icon theme has them, and a plain one in the place of
/// each that the toolkit could not open without harm. May be asked on any thread.
class SafeFileIcons final : public QFileIconProvider {
public:
    [[nodiscard]] QIcon icon(const QFileInfo& info) const override;
    using QFileIconProvider::icon;

    /// Whether the theme's picture for this kind of file can be opened, if there is one.
    [[nodiscard]] bool isSafeFor(const QFileInfo& info) const;

private:
    const IconThemeFiles files_;
};

/// To be called before the toolkit makes a dialog of its own: if one of the pictures for its buttons and
/// places could not be opened without harm, the toolkit gets no more icon themes and draws its own. Main
/// thread only.
void keepUnsafeIconsFromDialogs();

}  // namespace tidewatch
