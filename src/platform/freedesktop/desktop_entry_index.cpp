#include "platform/freedesktop/desktop_entry_index.h"

#include <sys/stat.h>

#include <algorithm>
#include <cctype>

#include "platform/posix/regular_file.h"

namespace tidewatch::platform {

namespace {

constexpr std::string_view suffix = ".desktop";
constexpr WalkLimits walkLimits{maxDesktopEntryDepth, 10'000};
constexpr std::size_t maxBytes = 32 * 1024 * 1024;

std::string lowerCase(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return result;
}

// Zero for a missing folder.
std::chrono::nanoseconds modificationTime(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return {};
    return std::chrono::seconds(status.st_mtim.tv_sec) + std::chrono::nanoseconds(status.st_mtim.tv_nsec);
}

std::optional<std::string> lookUp(const std::unordered_map<std::string, std::string>& map,
                                  std::string_view key) {
    if (key.empty()) return std::nullopt;
    const auto found = map.find(lowerCase(key));
    return found == map.end() ? std::nullopt : std::optional(found->second);
}

std::string idOf(const std::string& way, const std::string& name) {
    auto id = way + name.substr(0, name.size() - suffix.size());
    std::ranges::replace(id, '/', '-');
    return id;
}

}  // namespace

DesktopEntryIndex::DesktopEntryIndex(const std::vector<std::string>& folders, const std::atomic<bool>& stop) {
    for (const auto& folder : folders) {
        // A missing folder may be created later.
        if (modificationTime(folder) == std::chrono::nanoseconds()) folders_.push_back({folder, {}});
        readFolder(folder, stop);
    }
}

void DesktopEntryIndex::readFolder(const std::string& root, const std::atomic<bool>& stop) {
    const auto enter = [&](const std::string& path, const std::string& /*way*/) {
        if (stop) return false;
        folders_.push_back({path, modificationTime(path)});
        return true;
    };
    const auto visit = [&](const std::string& path, const std::string& way, const std::string& name) {
        if (!stop && name.ends_with(suffix)) readEntry(path + "/" + name, idOf(way, name));
    };
    walkFolders(root, walkLimits, enter, visit);
}

void DesktopEntryIndex::readEntry(const std::string& path, const std::string& id) {
    if (bytesRead_ > maxBytes || idByLowerCaseId_.contains(lowerCase(id))) return;
    const auto content = readRegularFile(path, maxDesktopEntrySize);
    if (!content) return;
    std::string_view text = content.value();
    bytesRead_ += text.size();
    idByLowerCaseId_.emplace(lowerCase(id), id);
    if (const auto dot = id.rfind('.'); dot != std::string::npos) {
        idByLastPart_.emplace(lowerCase(id.substr(dot + 1)), id);
    }
    constexpr std::string_view key = "StartupWMClass=";
    bool inMainGroup = false;
    while (!text.empty()) {
        const auto line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (line.starts_with('[')) {
            if (inMainGroup) break;
            inMainGroup = line.starts_with("[Desktop Entry]");
        } else if (inMainGroup && line.starts_with(key)) {
            idByAnnouncedClass_.emplace(lowerCase(line.substr(key.size())), id);
            break;
        }
    }
}

std::optional<std::string> DesktopEntryIndex::idForWindow(std::string_view instance,
                                                          std::string_view windowClass) const {
    if (windowClass.empty()) return findName(instance);
    auto application = findName(windowClass);
    if (!application) return std::nullopt;
    auto part = lookUp(idByAnnouncedClass_, instance);
    return part ? part : application;
}

std::optional<std::string> DesktopEntryIndex::findName(std::string_view name) const {
    for (const auto* map : {&idByAnnouncedClass_, &idByLowerCaseId_, &idByLastPart_}) {
        if (auto id = lookUp(*map, name)) return id;
    }
    return std::nullopt;
}

bool DesktopEntryIndex::isCurrent() const {
    return std::ranges::all_of(
        folders_, [](const Folder& folder) { return modificationTime(folder.path) == folder.modified; });
}

}  // namespace tidewatch::platform
