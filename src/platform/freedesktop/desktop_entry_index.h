#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tidewatch::platform {

/// The larger ones that desktops install have some ten thousand bytes.
inline constexpr std::size_t maxDesktopEntrySize = 256 * 1024;

/// Folders below `applications` on the way to an entry.
inline constexpr int maxDesktopEntryDepth = 8;

/// What the windows of the registered applications call themselves, as the `applications` folders had it when
/// they were read. Does not change; safe from any thread.
class DesktopEntryIndex final {
public:
    /// An index of nothing.
    DesktopEntryIndex() = default;

    /// Reads all entries below `folders`, the most important folder first: an id found twice counts where it
    /// is found first. Can take seconds on a cold disk; ends early, with what it has, once `stop` is set.
    /// What is out of all proportion is left out: folders nested too deep, an entry that is too large, and
    /// what comes after ten thousand names of a folder or 32 MB of entries.
    DesktopEntryIndex(const std::vector<std::string>& folders, const std::atomic<bool>& stop);

    /// See DesktopEntries.
    [[nodiscard]] std::optional<std::string> idForWindow(std::string_view instance,
                                                         std::string_view windowClass) const;

    /// Whether the folders that were read still hold the same names. Looks at each folder, at none of the
    /// entries.
    [[nodiscard]] bool isCurrent() const;

private:
    struct Folder {
        std::string path;
        std::chrono::nanoseconds modified;
    };

    void readFolder(const std::string& root, const std::atomic<bool>& stop);
    void readEntry(const std::string& path, const std::string& id);
    [[nodiscard]] std::optional<std::string> findName(std::string_view name) const;

    std::vector<Folder> folders_;
    std::size_t bytesRead_ = 0;
    std::unordered_map<std::string, std::string> idByAnnouncedClass_;
    std::unordered_map<std::string, std::string> idByLowerCaseId_;
    std::unordered_map<std::string, std::string> idByLastPart_;
};

}  // namespace tidewatch::platform
