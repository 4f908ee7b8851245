#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/api/workspace.h"

namespace tidewatch::platform {

/// The applications that the desktop knows, by what their windows call themselves. Read from the
/// `applications` folders at the first question and again when an unknown name turns up while a folder
/// has changed. Main thread only.
class DesktopEntries final {
public:
    /// `folders` as absolute paths, the most important first: an id found twice counts where it is found
    /// first.
    explicit DesktopEntries(std::vector<std::string> folders);

    /// The folders that the desktop's base-directory variables name.
    [[nodiscard]] static std::vector<std::string> standardFolders();

    /// The desktop-file id, without ".desktop", of the application whose windows have this class: that of the
    /// entry that announces the class, else of the one whose id equals it or ends in it after a dot. If there
    /// is one, an entry that announces the instance goes before it, as a part of the application with an
    /// entry of its own. A window without a class goes by its instance. Letter case does not matter. Nothing
    /// if no entry fits.
    [[nodiscard]] std::optional<std::string> idForWindow(std::string_view instance,
                                                         std::string_view windowClass);

    /// Whether there is an entry of exactly this id.
    [[nodiscard]] bool contains(const std::string& id);

    /// What the entry of exactly this id tells, its name in Spanish as readDesktopEntry() has it; an entry
    /// without a name goes by its id. Nothing if there is no such entry. Reads the one file each time.
    [[nodiscard]] std::optional<ApplicationInfo> info(const std::string& id, std::string_view locale) const;

private:
    struct Folder {
        std::string path;
        std::chrono::nanoseconds modified{-1};
    };

    bool refresh();
    void readFolder(const std::string& root, const std::string& prefix);
    void readEntry(const std::string& path, const std::string& id);
    [[nodiscard]] static std::optional<std::string> pathOf(const std::string& folder, const std::string& id);
    [[nodiscard]] std::optional<std::string> find(std::string_view instance,
                                                  std::string_view windowClass) const;
    [[nodiscard]] std::optional<std::string> findName(std::string_view name) const;

    std::vector<Folder> folders_;
    std::unordered_map<std::string, std::string> idByAnnouncedClass_;
    std::unordered_map<std::string, std::string> idByLowerCaseId_;
    std::unordered_map<std::string, std::string> idByLastPart_;
};

}  // namespace tidewatch::platform
