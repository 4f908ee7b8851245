#include "platform/posix/private_directory.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/posix/system_error.h"

namespace tidewatch::platform {
namespace {

constexpr mode_t privateMode = 0700;
constexpr mode_t rightsOfOthers = 0077;

bool isDirectory(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

struct stat inspected(const std::string& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) status.st_mode = 0;
    return status;
}

std::vector<std::string> namesIn(const std::string& directory) {
    std::vector<std::string> names;
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(::opendir(directory.c_str()), &::closedir);
    if (!stream) return names;
    while (const dirent* entry = ::readdir(stream.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") names.emplace_back(name);
    }
    return names;
}

void narrow(const std::string& path, mode_t kind) {
    const auto status = inspected(path);
    if ((status.st_mode & S_IFMT) != kind || status.st_uid != ::geteuid()) return;
    if ((status.st_mode & rightsOfOthers) == 0) return;
    static_cast<void>(::chmod(path.c_str(), status.st_mode & 07777 & ~rightsOfOthers));
}

// The toolkit's name for the folder in which it prepares a socket.
bool isSocketFolderName(std::string_view name) {
    constexpr std::size_t length = 7;
    const auto isLetterOrDigit = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    };
    return name.size() == length && name.front() == '.' &&
           std::ranges::all_of(name.substr(1), isLetterOrDigit);
}

void removeSocketFolder(const std::string& path) {
    if (!S_ISDIR(inspected(path).st_mode)) return;
    for (const auto& name : namesIn(path)) {
        const auto socket = path + "/" + name;
        if (S_ISSOCK(inspected(socket).st_mode)) ::unlink(socket.c_str());
    }
    ::rmdir(path.c_str());  // Fails, as intended, if it contains anything else.
}

}  // namespace

Status makePrivateDirectories(const std::string& path) {
    for (auto end = path.find('/', 1);; end = path.find('/', end + 1)) {
        const auto part = path.substr(0, end);
        if (::mkdir(part.c_str(), privateMode) == 0) {
            static_cast<void>(::chmod(part.c_str(), privateMode));
        } else {
            const auto error = systemError("make directory", part);
            if (!isDirectory(part)) return error;
        }
        if (end == std::string::npos) return success();
    }
}

void restrictFile(const std::string& path) {
    narrow(path, S_IFREG);
}

void restrictDirectory(const std::string& path) {
    narrow(path, S_IFDIR);
    for (const auto& name : namesIn(path)) restrictFile(path + "/" + name);
}

void removeLeftovers(const std::string& directory) {
    for (const auto& name : namesIn(directory)) {
        const auto path = directory + "/" + name;
        if (name.ends_with(".json.tmp") && !S_ISDIR(inspected(path).st_mode)) ::unlink(path.c_str());
        if (isSocketFolderName(name)) removeSocketFolder(path);
    }
}

}  // namespace tidewatch::platform
