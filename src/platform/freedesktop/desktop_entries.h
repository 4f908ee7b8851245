#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/api/applications.h"
#include "platform/freedesktop/desktop_entry_index.h"
#include "platform/freedesktop/desktop_entry_loader.h"

namespace tidewatch::platform {

/// The applications that the desktop knows, by what their windows call themselves and by their ids. No
/// question waits for the disk: entries are read in a thread of their own, at the start and again when an
/// `applications` folder has changed, which that thread looks for as well. What lies there may be anything;
/// what is no ordinary file, or out of all proportion, is no entry. Main thread only.
class DesktopEntries final {
public:
    using Now = std::function<std::chrono::steady_clock::time_point()>;

    /// `folders` as absolute paths, the most important first: an id found twice counts where it is found
    /// first. Begins to read them. A look at the folders is waited for no longer than `timeout`, and so is
    /// the end of the thread; what takes longer is learned later.
    explicit DesktopEntries(std::vector<std::string> folders, Now now = std::chrono::steady_clock::now,
                            std::chrono::milliseconds timeout = std::chrono::milliseconds(100));
    DesktopEntries(const DesktopEntries&) = delete;
    DesktopEntries& operator=(const DesktopEntries&) = delete;

    /// The folders that the desktop's base-directory variables name.
    [[nodiscard]] static std::vector<std::string> standardFolders();

    /// The desktop-file id, without ".desktop", of the application whose windows have this class: that of the
    /// entry that announces the class, else of the one whose id equals it or ends in it after a dot. If there
    /// is one, an entry that announces the instance goes before it, as a part of the application with an
    /// entry of its own. A window without a class goes by its instance. Letter case does not matter. Nothing
    /// if no entry fits; while isReading(), that is not the last word.
    [[nodiscard]] std::optional<std::string> idForWindow(std::string_view instance,
                                                         std::string_view windowClass);

    /// Whether entries are being read.
    [[nodiscard]] bool isReading();

    /// Waits until no entries are being read.
    void waitUntilLoaded();

    /// Grows whenever applications may have come, gone or changed: when the folders have changed, when they
    /// have been read, and once a minute since an entry can be changed in its place. Looks at the folders
    /// every other second at most, so that it may be asked at any rate.
    [[nodiscard]] std::uint64_t revision();

    /// What the entry of exactly this id tells, its name in Spanish as parseDesktopEntry() has it; an entry
    /// without a name goes by its id. Nothing if there is no such entry. Reads the one file each time.
    [[nodiscard]] std::optional<ApplicationInfo> info(const std::string& id, std::string_view locale) const;

private:
    void checkFolders();
    void countChanges();
    void adoptLoadedIndex();

    const std::vector<std::string> folders_;
    const Now now_;
    std::chrono::steady_clock::time_point lastCheck_;
    std::chrono::steady_clock::time_point lastGrowth_;
    std::uint64_t revision_ = 0;
    int changes_ = 0;  // those of the folders that were taken into account
    std::shared_ptr<const DesktopEntryIndex> index_ = std::make_shared<const DesktopEntryIndex>();
    DesktopEntryLoader loader_;
};

}  // namespace tidewatch::platform
