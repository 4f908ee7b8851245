#include "platform/linux/desktop_entries.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "platform/linux/desktop_entry.h"

namespace tidewatch::platform {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view suffix = ".desktop";

std::string lowerCase(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return result;
}

std::chrono::nanoseconds modificationTime(const std::string& path) {
    std::error_code error;
    const auto time = fs::last_write_time(path, error);
    return error ? std::chrono::nanoseconds(0) : std::chrono::nanoseconds(time.time_since_epoch());
}

std::optional<std::string> lookUp(const std::unordered_map<std::string, std::string>& map,
                                  std::string_view key) {
    if (key.empty()) return std::nullopt;
    const auto found = map.find(lowerCase(key));
    return found == map.end() ? std::nullopt : std::optional(found->second);
}

std::string environment(const char* name, const std::string& otherwise) {
    const char* value = std::getenv(name);
    return value != nullptr && *value != '\0' ? value : otherwise;
}

}  // namespace

DesktopEntries::DesktopEntries(std::vector<std::string> folders) {
    for (auto& folder : folders) folders_.push_back({std::move(folder)});
}

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
    if (const auto id = find(instance, windowClass)) return id;
    return refresh() ? find(instance, windowClass) : std::nullopt;
}

bool DesktopEntries::contains(const std::string& id) {
    const auto known = [&] {
        const auto found = idByLowerCaseId_.find(lowerCase(id));
        return found != idByLowerCaseId_.end() && found->second == id;
    };
    return known() || (refresh() && known());
}

std::optional<ApplicationInfo> DesktopEntries::info(const std::string& id, std::string_view locale) const {
    if (id.find_first_of(std::string_view("/\0", 2)) != std::string::npos) return std::nullopt;
    for (const auto& folder : folders_) {
        const auto path = pathOf(folder.path, id);
        if (!path) continue;
        std::ifstream file(*path);
        const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        auto info = readDesktopEntry(text, locale);
        if (info && info->name.empty()) info->name = id;
        return info;
    }
    return std::nullopt;
}

// A dash in an id stands for itself or for a step into a folder.
std::optional<std::string> DesktopEntries::pathOf(const std::string& folder, const std::string& id) {
    std::error_code error;
    auto path = folder + "/" + id + std::string(suffix);
    if (fs::is_regular_file(path, error)) return path;
    for (auto dash = id.find('-'); dash != std::string::npos; dash = id.find('-', dash + 1)) {
        const auto name = id.substr(0, dash);
        if (name.empty() || name == "." || name == ".." || !fs::is_directory(folder + "/" + name, error)) {
            continue;
        }
        if (auto below = pathOf(folder + "/" + name, id.substr(dash + 1))) return below;
    }
    return std::nullopt;
}

std::optional<std::string> DesktopEntries::find(std::string_view instance,
                                                std::string_view windowClass) const {
    if (windowClass.empty()) return findName(instance);
    auto application = findName(windowClass);
    if (!application) return std::nullopt;
    auto part = lookUp(idByAnnouncedClass_, instance);
    return part ? part : application;
}

std::optional<std::string> DesktopEntries::findName(std::string_view name) const {
    for (const auto* map : {&idByAnnouncedClass_, &idByLowerCaseId_, &idByLastPart_}) {
        if (auto id = lookUp(*map, name)) return id;
    }
    return std::nullopt;
}

bool DesktopEntries::refresh() {
    bool changed = false;
    for (auto& folder : folders_) {
        const auto modified = modificationTime(folder.path);
        changed = changed || modified != folder.modified;
        folder.modified = modified;
    }
    if (!changed) return false;
    idByAnnouncedClass_.clear();
    idByLowerCaseId_.clear();
    idByLastPart_.clear();
    for (const auto& folder : folders_) readFolder(folder.path, "");
    return true;
}

void DesktopEntries::readFolder(const std::string& root, const std::string& prefix) {
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(root, error)) {
        const auto name = entry.path().filename().string();
        if (entry.is_directory(error)) {
            readFolder(entry.path().string(), prefix + name + "-");
        } else if (name.ends_with(suffix)) {
            readEntry(entry.path().string(), prefix + name.substr(0, name.size() - suffix.size()));
        }
    }
}

void DesktopEntries::readEntry(const std::string& path, const std::string& id) {
    if (!idByLowerCaseId_.emplace(lowerCase(id), id).second) return;
    if (const auto dot = id.rfind('.'); dot != std::string::npos) {
        idByLastPart_.emplace(lowerCase(id.substr(dot + 1)), id);
    }
    constexpr std::string_view key = "StartupWMClass=";
    std::ifstream file(path);
    bool inMainGroup = false;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('[')) {
            if (inMainGroup) break;
            inMainGroup = line.starts_with("[Desktop Entry]");
        } else if (inMainGroup && line.starts_with(key)) {
            idByAnnouncedClass_.emplace(lowerCase(line.substr(key.size())), id);
            break;
        }
    }
}

}  // namespace tidewatch::platform
