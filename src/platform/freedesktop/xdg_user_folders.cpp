#include "platform/freedesktop/xdg_user_folders.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "base/trim.h"
#include "platform/posix/regular_file.h"

namespace tidewatch::platform {

namespace {

constexpr std::size_t maxUserDirs = 64 * 1024;  // bytes

struct FolderRow {
    UserFolder folder;
    std::string_view key;
    std::string_view defaultName;
};
constexpr auto folderRows = std::to_array<FolderRow>({
    {UserFolder::downloads, "XDG_DOWNLOAD_DIR", "Downloads"},
    {UserFolder::desktop, "XDG_DESKTOP_DIR", "Desktop"},
    {UserFolder::documents, "XDG_DOCUMENTS_DIR", "Documents"},
    {UserFolder::videos, "XDG_VIDEOS_DIR", "Videos"},
});

// The text between the quotes, as a shell would read it; nullopt if there is no closing quote.
std::optional<std::string> unquoted(std::string_view value) {
    if (!value.starts_with('"')) return std::nullopt;
    std::string text;
    for (std::size_t i = 1; i < value.size(); ++i) {
        if (value[i] == '"') return text;
        if (value[i] == '\\' && ++i == value.size()) break;
        text += value[i];
    }
    return std::nullopt;
}

std::string withoutTrailingSlashes(std::string path) {
    while (path.ends_with('/')) path.pop_back();
    return path;
}

}  // namespace

std::map<std::string, std::string> parseUserDirs(std::string_view text, const std::string& home) {
    constexpr std::string_view homeVariable = "$HOME";
    std::map<std::string, std::string> values;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        const auto line = trimmed(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        const auto equals = line.find('=');
        if (line.starts_with('#') || equals == std::string_view::npos) continue;
        auto value = unquoted(trimmed(line.substr(equals + 1)));
        if (!value) continue;
        if (*value == homeVariable || value->starts_with(std::string(homeVariable) + "/")) {
            value = home + value->substr(homeVariable.size());
        }
        if (!value->starts_with('/')) continue;
        values[std::string(trimmed(line.substr(0, equals)))] = withoutTrailingSlashes(*value);
    }
    return values;
}

XdgUserFolders::XdgUserFolders(std::string home, std::string configDirectory)
    : home_(std::move(home)), configDirectory_(std::move(configDirectory)) {}

std::optional<std::string> XdgUserFolders::path(UserFolder folder) const {
    const auto& row = *std::ranges::find(folderRows, folder, &FolderRow::folder);
    const auto text = readRegularFile(configDirectory_ + "/user-dirs.dirs", maxUserDirs);
    const auto values = text ? parseUserDirs(text.value(), home_) : std::map<std::string, std::string>();
    const auto value = values.find(std::string(row.key));
    if (value == values.end()) return home_ + "/" + std::string(row.defaultName);
    if (value->second == home_) return std::nullopt;
    return value->second;
}

}  // namespace tidewatch::platform
