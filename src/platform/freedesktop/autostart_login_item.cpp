#include "platform/freedesktop/autostart_login_item.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <sstream>

namespace tidewatch::platform {

namespace {

/// A program path for the Exec key: in double quotes, special characters escaped. Entry values are unescaped
/// once before that, so each backslash is doubled.
std::string quotedForExec(const std::string& path) {
    std::string quoted = "\"";
    for (const char c : path) {
        if (c == '"' || c == '`' || c == '$') quoted += "\\\\";
        if (c == '\\') quoted += "\\\\\\";
        if (c == '%') quoted += '%';
        quoted += c;
    }
    return quoted + '"';
}

/// A string value of an entry.
std::string escaped(const std::string& value) {
    std::string text;
    for (const char c : value) {
        if (c == '\\') text += c;
        text += c;
    }
    return text;
}

}  // namespace

AutostartLoginItem::AutostartLoginItem(FileSystem& files, const std::string& configDirectory,
                                       std::string program)
    : files_(files),
      directory_(configDirectory + "/autostart"),
      path_(directory_ + "/com.brightlooms.tidewatch.desktop"),
      program_(std::move(program)) {}

bool AutostartLoginItem::isEnabled() const {
    const auto entry = files_.readFile(path_);
    if (!entry) return false;
    std::istringstream lines(entry.value());
    for (std::string line; std::getline(lines, line);) {
        if (line == "Hidden=true" || line == "X-GNOME-Autostart-enabled=false") return false;
    }
    return true;
}

Status AutostartLoginItem::registerItem() {
    if (auto made = files_.createDirectories(directory_); !made) return made;
    const auto failure =
        files_.exportFile(path_, fmt::format("[Desktop Entry]\n"
                                             "Type=Application\n"
                                             "Name=Tidewatch\n"
                                             "Comment=Marca tu tiempo.\n"
                                             "Exec={}\n"
                                             // Nothing is started once the program is uninstalled.
                                             "TryExec={}\n"
                                             "Icon=com.brightlooms.tidewatch\n"
                                             "X-GNOME-Autostart-enabled=true\n",
                                             quotedForExec(program_), escaped(program_)));
    return failure ? Status(Error{failure->message}) : success();
}

Status AutostartLoginItem::unregisterItem() {
    if (std::remove(path_.c_str()) == 0 || errno == ENOENT) return success();
    return Error{fmt::format("{}: {}", path_, std::strerror(errno))};
}

}  // namespace tidewatch::platform
