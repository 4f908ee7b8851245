#include "platform/freedesktop/desktop_entries.h"

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <utility>

#include "platform/freedesktop/desktop_entry.h"
#include "platform/posix/regular_file.h"

namespace tidewatch::platform {

namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds checkInterval(2);
constexpr std::chrono::minutes growthInterval(1);

std::string environment(const char* name, const std::string& otherwise) {
    const char* value = std::getenv(name);
    return value != nullptr && *value != '\0' ? value : otherwise;
}

// The files that an id can denote: each dash is itself or a folder separator.
class EntrySearch final {
public:
    // The text of the entry; nullopt if none can be read.
    std::optional<std::string> find(const std::string& folder, const std::string& id, int depth = 0) {
        // The id comes from a window: with cyclic links, a long one would have endless candidates.
        constexpr int maxTries = 200;
        if (++tries_ > maxTries) return std::nullopt;
        if (auto text = readRegularFile(folder + "/" + id + ".desktop", maxDesktopEntrySize)) {
            return std::move(text).value();
        }
        if (depth == maxDesktopEntryDepth) return std::nullopt;
        for (auto dash = id.find('-'); dash != std::string::npos; dash = id.find('-', dash + 1)) {
            if (++tries_ > maxTries) return std::nullopt;
            const auto name = id.substr(0, dash);
            std::error_code error;
            if (name.empty() || name == "." || name == ".." ||
                !fs::is_directory(folder + "/" + name, error)) {
                continue;
            }
            if (auto below = find(folder + "/" + name, id.substr(dash + 1), depth + 1)) return below;
        }
        return std::nullopt;
    }

private:
    int tries_ = 0;
};

}  // namespace

DesktopEntries::DesktopEntries(std::vector<std::string> folders, Now now, std::chrono::milliseconds timeout)
    : folders_(std::move(folders)),
      now_(std::move(now)),
      lastCheck_(now_()),
      lastGrowth_(lastCheck_),
      loader_(folders_, timeout) {}

std::vector<std::string> DesktopEntries::standardFolders() {
    std::vector<std::string> folders{environment("XDG_DATA_HOME", environment("HOME", "") + "/.local/share") +
                                     "/applications"};
    std::istringstream shared(environment("XDG_DATA_DIRS", "/usr/local/share:/usr/share"));
    for (std::string folder; std::getline(shared, folder, ':');) {
        if (!folder.empty()) folders.push_back(folder + "/applications");
    }
    return folders;
}

std::optional<std::string> DesktopEntries::idForWindow(std::string_view instance,
                                                       std::string_view windowClass) {
    adoptLoadedIndex();
    auto id = index_->idForWindow(instance, windowClass);
    if (!id) checkFolders();
    return id;
}

bool DesktopEntries::isReading() {
    adoptLoadedIndex();
    return loader_.isReading();
}

void DesktopEntries::waitUntilLoaded() {
    loader_.waitUntilIdle();
    adoptLoadedIndex();
}

std::uint64_t DesktopEntries::revision() {
    const auto now = now_();
    if (now - lastCheck_ >= checkInterval) {
        lastCheck_ = now;
        adoptLoadedIndex();
        checkFolders();
        if (now - lastGrowth_ >= growthInterval) {
            lastGrowth_ = now;
            ++revision_;
        }
    }
    return revision_;
}

std::optional<ApplicationInfo> DesktopEntries::info(const std::string& id, std::string_view locale) const {
    if (id.find_first_of(std::string_view("/\0", 2)) != std::string::npos) return std::nullopt;
    for (const auto& folder : folders_) {
        const auto text = EntrySearch().find(folder, id);
        if (!text) continue;
        auto info = parseDesktopEntry(*text, locale);
        if (info && info->name.empty()) info->name = id;
        return info;
    }
    return std::nullopt;
}

void DesktopEntries::checkFolders() {
    loader_.check();
    countChanges();
}

void DesktopEntries::countChanges() {
    const int changes = loader_.changes();
    if (changes != std::exchange(changes_, changes)) ++revision_;
}

void DesktopEntries::adoptLoadedIndex() {
    countChanges();
    auto fresh = loader_.take();
    if (!fresh) return;
    index_ = std::move(fresh);
    ++revision_;
}

}  // namespace tidewatch::platform
