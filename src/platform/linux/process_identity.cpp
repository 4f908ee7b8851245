#include "platform/linux/process_identity.h"

#include <sstream>
#include <utility>

#include "platform/posix/regular_file.h"

namespace tidewatch::platform {

namespace {

// A sandbox's metadata is a few hundred bytes, but the sandboxed process controls the file.
constexpr std::size_t maxSize = 64 * 1024;

std::string content(const std::string& path) {
    auto text = readRegularFile(path, maxSize);
    return text ? std::move(text).value() : std::string();
}

}  // namespace

std::optional<std::string> sandboxedApplication(pid_t process, const std::string& procDirectory) {
    const auto directory = procDirectory + "/" + std::to_string(process);
    if (auto id = flatpakId(content(directory + "/root/.flatpak-info"))) return id;
    return snapId(content(directory + "/cgroup"));
}

std::optional<std::string> flatpakId(std::string_view information) {
    std::istringstream lines{std::string(information)};
    bool inApplication = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with('[')) inApplication = line == "[Application]";
        if (inApplication && line.starts_with("name=") && line.size() > 5) return line.substr(5);
    }
    return std::nullopt;
}

std::optional<std::string> snapId(std::string_view controlGroups) {
    constexpr std::string_view mark = "/snap.";
    const auto start = controlGroups.find(mark);
    if (start == std::string_view::npos) return std::nullopt;
    auto rest = controlGroups.substr(start + mark.size());
    const auto dot = rest.find('.');
    if (dot == std::string_view::npos) return std::nullopt;
    const auto name = rest.substr(0, dot);
    rest.remove_prefix(dot + 1);
    // The unit is "snap.<name>.<application>.<unique part>.scope", or "...-<unique part>.scope" on older
    // systems.
    auto application = rest.substr(0, rest.find_first_of(".\n"));
    constexpr std::size_t uniquePart = 37;  // a dash and a UUID
    if (application.size() > uniquePart && application[application.size() - uniquePart] == '-') {
        application.remove_suffix(uniquePart);
    }
    if (name.empty() || application.empty()) return std::nullopt;
    return std::string(name) + "_" + std::string(application);
}

}  // namespace tidewatch::platform
