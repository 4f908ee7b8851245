#include "platform/freedesktop/xdg_trash.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <optional>
#include <utility>

#include "platform/posix/file_descriptor.h"
#include "platform/posix/private_directory.h"
#include "platform/posix/rename_to_free.h"
#include "platform/posix/system_error.h"

namespace tidewatch::platform {

namespace {

constexpr mode_t trashMode = 0700;
constexpr mode_t infoMode = 0600;

std::string parentFolder(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::string percentEncoded(std::string_view path) {
    constexpr std::string_view plain = "-_.~/";
    std::string text;
    for (const char letter : path) {
        const auto byte = static_cast<unsigned char>(letter);
        const bool isWord =
            (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
        if (isWord || plain.find(letter) != std::string_view::npos) {
            text += letter;
        } else {
            text += fmt::format("%{:02X}", byte);
        }
    }
    return text;
}

// The directory that the volume of `path` is mounted on.
std::string mountPointOf(std::string path, dev_t device) {
    while (path != "/") {
        const auto parent = parentFolder(path);
        struct stat status {};
        if (::stat(parent.c_str(), &status) != 0 || status.st_dev != device) break;
        path = parent;
    }
    return path;
}

bool isDirectoryOfUser(const std::string& path) {
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == ::getuid();
}

// The user's directory in what an administrator has set up for all users of a volume. Only if nobody can make
// it point elsewhere: a real directory with the sticky bit.
std::optional<std::string> sharedTrash(const std::string& mountPoint) {
    const auto shared = mountPoint + (mountPoint.ends_with('/') ? "" : "/") + ".Trash";
    struct stat status {};
    if (::lstat(shared.c_str(), &status) != 0 || !S_ISDIR(status.st_mode) || !(status.st_mode & S_ISVTX))
        return std::nullopt;
    auto own = fmt::format("{}/{}", shared, ::getuid());
    ::mkdir(own.c_str(), trashMode);
    return isDirectoryOfUser(own) ? std::optional(std::move(own)) : std::nullopt;
}

// "name", "name.2", ...
std::string numbered(const std::string& name, int number) {
    return number == 1 ? name : fmt::format("{}.{}", name, number);
}

bool writeAll(int file, std::string_view text) {
    while (!text.empty()) {
        const auto count = ::write(file, text.data(), text.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

}  // namespace

std::string trashInfo(std::string_view path, Instant now, std::chrono::seconds utcOffset) {
    const auto time = civilTime(now, utcOffset);
    return fmt::format("[Trash Info]\nPath={}\nDeletionDate={:04}-{:02}-{:02}T{:02}:{:02}:{:02}\n",
                       percentEncoded(path), static_cast<int>(time.date.year()),
                       static_cast<unsigned>(time.date.month()), static_cast<unsigned>(time.date.day()),
                       time.hour, time.minute, time.second);
}

XdgTrash::XdgTrash(const Clock& clock, std::string dataDirectory)
    : clock_(clock), dataDirectory_(std::move(dataDirectory)) {}

Status XdgTrash::moveToTrash(const std::string& path) {
    const auto place = placeFor(path);
    if (!place) return place.error();
    return moveTo(place.value(), path);
}

Result<XdgTrash::Place> XdgTrash::placeFor(const std::string& path) const {
    struct stat file {};
    if (!path.starts_with('/') || ::lstat(path.c_str(), &file) != 0) return systemError("inspect", path);
    // That a rename succeeds depends on the volume of its folder.
    const auto folder = parentFolder(path);
    struct stat status {};
    if (::stat(folder.c_str(), &status) != 0) return systemError("inspect", folder);
    const auto device = status.st_dev;

    const auto own = dataDirectory_ + "/Trash";
    if (makePrivateDirectories(own) && ::stat(own.c_str(), &status) == 0 && status.st_dev == device) {
        return Place{own, path};
    }
    const auto mountPoint = mountPointOf(folder, device);
    const auto prefix = mountPoint.ends_with('/') ? mountPoint : mountPoint + "/";
    // Relative, since the volume may be mounted elsewhere the next time.
    const auto told = path.substr(prefix.size());
    if (auto shared = sharedTrash(mountPoint)) return Place{*shared, told};
    const auto ofVolume = fmt::format("{}.Trash-{}", prefix, ::getuid());
    if (::mkdir(ofVolume.c_str(), trashMode) != 0 && errno != EEXIST)
        return systemError("make directory", ofVolume);
    if (!isDirectoryOfUser(ofVolume)) return Error{"use " + ofVolume + ": not a directory of the user"};
    return Place{ofVolume, told};
}

Status XdgTrash::moveTo(const Place& place, const std::string& path) const {
    const auto files = place.directory + "/files";
    const auto infos = place.directory + "/info";
    for (const auto& directory : {files, infos}) {
        if (::mkdir(directory.c_str(), trashMode) != 0 && errno != EEXIST)
            return systemError("make directory", directory);
    }
    const auto now = clock_.now();
    const auto information = trashInfo(place.told, now, clock_.timeZone()->utcOffset(now));
    const auto name = path.substr(path.rfind('/') + 1);
    for (int number = 1;; ++number) {
        const auto target = files + "/" + numbered(name, number);
        const auto info = infos + "/" + numbered(name, number) + ".trashinfo";
        // Creating it reserves the name, also among programs.
        FileDescriptor file(
            ::open(info.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, infoMode));
        if (!file.isOpen() && errno == EEXIST) continue;
        if (!file.isOpen()) return systemError("open", info);
        const bool isWritten = writeAll(file.get(), information);
        if (isWritten && file.close() && renameToFree(path, target)) return success();
        const auto error = errno;
        ::unlink(info.c_str());
        // A file whose information somebody has lost.
        if (isWritten && error == EEXIST) continue;
        errno = error;
        return systemError("move to the trash", path);
    }
}

}  // namespace tidewatch::platform
