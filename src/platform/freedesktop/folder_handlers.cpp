#include "platform/freedesktop/folder_handlers.h"

#include <QStandardPaths>
#include <QStringList>
#include <algorithm>
#include <array>
#include <cstdlib>

namespace tidewatch::platform {

namespace {

constexpr std::string_view folderKey = "inode/directory=";
constexpr std::string_view extension = ".desktop";
constexpr std::array<std::string_view, 3> groups = {"[Default Applications]", "[Added Associations]",
                                                    "[MIME Cache]"};

/// The prefixes of the current desktops' lists, each with its hyphen.
QStringList desktopPrefixes() {
    const char* desktops = std::getenv("XDG_CURRENT_DESKTOP");
    QStringList prefixes;
    for (const auto& name : QString(desktops).toLower().split(':', Qt::SkipEmptyParts))
        prefixes << name + '-';
    return prefixes << "";
}

std::string_view nextLine(std::string_view& text) {
    const auto end = std::min(text.find('\n'), text.size());
    const auto line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
}

}  // namespace

std::vector<std::string> standardRegistrationLists() {
    using Paths = QStandardPaths;
    std::vector<std::string> lists;
    for (const auto place : {Paths::GenericConfigLocation, Paths::ApplicationsLocation}) {
        for (const auto& folder : Paths::standardLocations(place)) {
            for (const auto& prefix : desktopPrefixes()) {
                lists.push_back((folder + '/' + prefix + "mimeapps.list").toStdString());
            }
        }
    }
    for (const auto& folder : Paths::standardLocations(Paths::ApplicationsLocation)) {
        lists.push_back((folder + "/mimeinfo.cache").toStdString());
    }
    return lists;
}

std::vector<std::string> folderHandlers(std::string_view list) {
    std::vector<std::string> ids;
    bool inGroup = false;
    while (!list.empty()) {
        auto line = nextLine(list);
        if (line.starts_with('[')) inGroup = std::ranges::find(groups, line) != groups.end();
        if (!inGroup || !line.starts_with(folderKey)) continue;
        line.remove_prefix(folderKey.size());
        while (!line.empty()) {
            const auto end = std::min(line.find(';'), line.size());
            const auto id = line.substr(0, end);
            if (id.ends_with(extension)) ids.emplace_back(id.substr(0, id.size() - extension.size()));
            line.remove_prefix(std::min(end + 1, line.size()));
        }
    }
    return ids;
}

}  // namespace tidewatch::platform
