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

/// The largest ones that desktops install are about ten thousand bytes.
inline constexpr std::size_t maxDesktopEntrySize = 256 * 1024;

/// Nesting of folders below `applications`.
inline constexpr int maxDesktopEntryDepth = 8;

/// An immutable index from window classes to the entries of the `applications` folders. Thread-safe.
class DesktopEntryIndex final {
public:
    /// An empty index.
    DesktopEntryIndex() = default;

    /// Reads all entries below `folders`, in order of precedence: of duplicate ids the first wins. Can take
    /// seconds on a cold disk; ends early once `stop` is set. Ignores folders nested too deep, entries that
    /// are too large, and everything after ten thousand names in a folder or 32 MB of entries.
    DesktopEntryIndex(const std::vector<std::string>& folders, const std::atomic<bool>& stop);

    /// See DesktopEntries.
    [[nodiscard]] std::optional<std::string> idForWindow(std::string_view instance,
                                                         std::string_view windowClass) const;

    /// Whether the folders still contain the same names. Checks each folder, but no entry.
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
