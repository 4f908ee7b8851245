#include "shell/windows/safe_file_icons.h"

#include <QIcon>
#include <QMimeDatabase>
#include <algorithm>
#include <array>

namespace tidewatch {

namespace {

/// The icons that the toolkit requests from the icon theme for file dialogs and questions.
constexpr std::array dialogIcons = {
    "computer",
    "dialog-cancel",
    "dialog-error",
    "dialog-information",
    "dialog-ok",
    "dialog-ok-apply",
    "dialog-question",
    "dialog-warning",
    "document-open",
    "document-save",
    "drive-harddisk",
    "drive-optical",
    "drive-removable-media",
    "edit-clear",
    "edit-clear-locationbar-ltr",
    "edit-delete",
    "emblem-symbolic-link",
    "empty",
    "folder",
    "folder-new",
    "folder-open",
    "folder-remote",
    "go-down",
    "go-home",
    "go-next",
    "go-parent-folder",
    "go-previous",
    "go-up",
    "inode-directory",
    "media-floppy",
    "media-optical",
    "network-server",
    "process-stop",
    "system",
    "text-x-generic",
    "unknown",
    "user-desktop",
    "user-home",
    "user-trash",
    "view-list-details",
    "view-list-icons",
    "view-refresh",
    "window-close",
};

}  // namespace

QIcon SafeFileIcons::icon(const QFileInfo& info) const {
    return isSafeFor(info) ? QFileIconProvider::icon(info) : icon(info.isDir() ? Folder : File);
}

bool SafeFileIcons::isSafeFor(const QFileInfo& info) const {
    const auto type = QMimeDatabase().mimeTypeForFile(info);
    return files_.canBeOpened(type.iconName()) && files_.canBeOpened(type.genericIconName());
}

void keepUnsafeIconsFromDialogs() {
    const IconThemeFiles files;
    if (std::ranges::all_of(dialogIcons, [&](const char* name) { return files.canBeOpened(name); })) return;
    // None at all would mean those of the desktop.
    QIcon::setThemeSearchPaths({":/none"});
    QIcon::setFallbackSearchPaths({});
}

}  // namespace tidewatch
