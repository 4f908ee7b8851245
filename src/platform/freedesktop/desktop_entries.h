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

/// The desktop's applications, by window class and by id. No query waits for the disk: entries are loaded on
/// a separate thread, at the start and again when an `applications` folder has changed, which that thread
/// detects as well. Files that are not regular or too large are ignored. Main thread only.
class DesktopEntries final {
public:
    using Now = std::function<std::chrono::steady_clock::time_point()>;

    /// Starts loading `folders`: absolute paths in order of precedence. Waits at most `timeout` for a check
    /// of the folders and for the end of the thread; slower results arrive later.
    explicit DesktopEntries(std::vector<std::string> folders, Now now = std::chrono::steady_clock::now,
                            std::chrono::milliseconds timeout = std::chrono::milliseconds(100));
    DesktopEntries(const DesktopEntries&) = delete;
    DesktopEntries& operator=(const DesktopEntries&) = delete;

    /// The folders of the XDG base directory variables.
    [[nodiscard]] static std::vector<std::string> standardFolders();

    /// The desktop-file id, without ".desktop", of the application whose windows have this class: the entry
    /// with that StartupWMClass, else the one whose id equals it or ends with it after a dot. If an entry has
    /// the instance as its StartupWMClass, it takes precedence, as a part of the application with its own
    /// entry. A window without a class is matched by its instance. Case-insensitive. Returns nullopt if no
    /// entry matches; while isReading(), that may change.
    [[nodiscard]] std::optional<std::string> idForWindow(std::string_view instance,
                                                         std::string_view windowClass);

    /// Whether entries are being loaded.
    [[nodiscard]] bool isReading();

    /// Waits until no entries are being loaded.
    void waitUntilLoaded();

    /// Increases whenever applications may have been added, removed or changed: when the folders have
    /// changed, when they have been loaded, and once a minute, because entries can be modified in place.
    /// Checks the folders at most every other second; may be called at any rate.
    [[nodiscard]] std::uint64_t revision();

    /// The entry with exactly this id, its name localised as by parseDesktopEntry(); an entry without a name
    /// gets its id. Returns nullopt if there is no such entry. Reads the file on each call.
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
    int changes_ = 0;  // changes of the folders already included in revision_
    std::shared_ptr<const DesktopEntryIndex> index_ = std::make_shared<const DesktopEntryIndex>();
    DesktopEntryLoader loader_;
};

}  // namespace tidewatch::platform
