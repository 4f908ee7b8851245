#pragma once

#include <QFileIconProvider>

#include "ui/symbols/icon_theme_files.h"

namespace tidewatch {

/// File and folder icons from the desktop's icon theme, with a plain one instead of each that would be unsafe
/// to open. Thread-safe.
class SafeFileIcons final : public QFileIconProvider {
public:
    [[nodiscard]] QIcon icon(const QFileInfo& info) const override;
    using QFileIconProvider::icon;

    /// Whether the theme's icon for this kind of file, if any, is safe to open.
    [[nodiscard]] bool isSafeFor(const QFileInfo& info) const;

private:
    const IconThemeFiles files_;
};

/// Must be called before the toolkit creates its own dialog: if one of the icons of its buttons and places is
/// unsafe to open, disables icon themes, so that the toolkit uses its own. Main thread only.
void keepUnsafeIconsFromDialogs();

}  // namespace tidewatch
