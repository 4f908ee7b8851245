#include "platform/posix/posix_file_system.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <optional>
#include <utility>

#include "platform/posix/directory_lock.h"
#include "platform/posix/directory_tree.h"
#include "platform/posix/file_descriptor.h"
#include "platform/posix/file_replacement.h"
#include "platform/posix/posix_file_reader.h"
#include "platform/posix/private_directory.h"
#include "platform/posix/regular_file.h"
#include "platform/posix/rename_to_free.h"
#include "platform/posix/stat_file_info.h"
#include "platform/posix/system_error.h"

namespace tidewatch::platform {
namespace {

constexpr mode_t recordMode = 0600;
constexpr mode_t newFileMode = 0666;  // less the umask
constexpr int newFileFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;

std::string userHomeDirectory() {
    std::string home;
    if (const char* variable = std::getenv("HOME"); variable && *variable == '/') {
        home = variable;
    } else if (const passwd* user = ::getpwuid(::getuid()); user && user->pw_dir) {
        home = user->pw_dir;
    }
    while (home.ends_with('/')) home.pop_back();
    return home;
}

// The mode of the file, 0 if there is none.
mode_t modeAt(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode : 0;
}

// rename() replaces anything, even a device if permitted.
bool isDevice(mode_t mode) {
    return S_ISCHR(mode) || S_ISBLK(mode);
}

std::string today() {
    const auto now = std::time(nullptr);
    std::tm day{};
    ::localtime_r(&now, &day);
    return fmt::format("{:04}-{:02}-{:02}", day.tm_year + 1900, day.tm_mon + 1, day.tm_mday);
}

ExportErrorKind faultOf(int code) {
    struct Row {
        int code;
        ExportErrorKind kind;
    };
    constexpr std::array rows{
        Row{EACCES, ExportErrorKind::noPermission},  Row{EPERM, ExportErrorKind::noPermission},
        Row{EROFS, ExportErrorKind::readOnlyDisk},   Row{ENOSPC, ExportErrorKind::noSpace},
        Row{EDQUOT, ExportErrorKind::noSpace},       Row{EFBIG, ExportErrorKind::noSpace},
        Row{ENOENT, ExportErrorKind::folderMissing}, Row{ENOTDIR, ExportErrorKind::folderMissing},
        Row{EISDIR, ExportErrorKind::notAFile},      Row{ENAMETOOLONG, ExportErrorKind::nameTooLong},
    };
    const auto* row = std::ranges::find(rows, code, &Row::code);
    return row == rows.end() ? ExportErrorKind::other : row->kind;
}

ExportError exportError(const ReplacementFailure& failure) {
    return {faultOf(failure.code), failure.message()};
}

struct NewFile {
    int descriptor;
    std::string path;
};

// A new hidden file in the directory of `target`, with an unpredictable name.
NewFile makeHiddenNeighbour(const std::string& target, mode_t mode) {
    const auto directory = target.substr(0, target.rfind('/') + 1);
    NewFile file{-1, {}};
    do {
        std::uint64_t random = 0;
        if (::getrandom(&random, sizeof random, 0) < 0) break;
        file.path = fmt::format("{}.tidewatch-{:016x}", directory, random);
        file.descriptor = ::open(file.path.c_str(), newFileFlags, mode);
    } while (file.descriptor < 0 && errno == EEXIST);
    return file;
}

}  // namespace

PosixFileSystem::PosixFileSystem(DirectoryLock* lock) : PosixFileSystem(userHomeDirectory(), lock) {}

PosixFileSystem::PosixFileSystem(std::string homeDirectory, DirectoryLock* lock)
    : home_(std::move(homeDirectory)), lock_(lock) {}

Status PosixFileSystem::createDirectories(const std::string& path) {
    return makePrivateDirectories(path);
}

FileResult<std::string> PosixFileSystem::readFile(const std::string& path) const {
    // The record may have any size.
    return readRegularFile(path, anySize);
}

FileResult<std::unique_ptr<FileReader>> PosixFileSystem::openForReading(const std::string& path,
                                                                        std::uint64_t offset) const {
    auto opened = openRegularFile(path);
    if (!opened) return opened.error();
    auto file = std::move(opened).value();
    if (::lseek(file.get(), static_cast<off_t>(offset), SEEK_SET) < 0) return fileError("seek", path);
    return std::unique_ptr<FileReader>(std::make_unique<PosixFileReader>(std::move(file), path));
}

FileStatus PosixFileSystem::enumerate(const std::string& directory, HiddenFiles hidden,
                                      const FileVisitor& visit) const {
    return enumerateDirectoryTree(directory, hidden, visit);
}

FileResult<FileInfo> PosixFileSystem::inspect(const std::string& path) const {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return fileError("inspect", path);
    return fileInfo(status);
}

RecordLock PosixFileSystem::ensureRecordLock(const std::string& directory) {
    if (lock_) return lock_->ensure();
    // A failure shows in the write that follows.
    if (modeAt(directory) == 0) static_cast<void>(createDirectories(directory));
    return RecordLock::held;
}

Result<FileInfo> PosixFileSystem::replaceAtomically(const std::string& path, const ContentWriter& content) {
    const auto target = resolvedLinks(path);
    if (isDevice(modeAt(target))) return Error{"replace " + target + ": a device"};
    const auto successor = target + ".tmp";
    // What a killed writer left may have been tampered with; create a new file.
    ::unlink(successor.c_str());
    const int descriptor = ::open(successor.c_str(), newFileFlags, recordMode);
    if (descriptor < 0) return systemError("open", successor);
    // The umask may have removed the owner's permissions.
    static_cast<void>(::fchmod(descriptor, recordMode));
    const auto written = replaceWith(descriptor, successor, target, content);
    if (!written) return Error{written.error().message()};
    return written.value();
}

Result<std::optional<std::string>> PosixFileSystem::setAside(const std::string& path, std::string_view mark) {
    const auto place = resolvedLinks(path);
    struct stat status {};
    const bool isThere = ::lstat(place.c_str(), &status) == 0;
    if (!isThere || isDevice(status.st_mode) || (S_ISREG(status.st_mode) && status.st_size == 0)) {
        return std::optional<std::string>();
    }
    const auto name = fmt::format("{}.{}-{}", place, mark, today());
    auto free = name;
    for (int number = 2; !renameToFree(place, free); ++number) {
        if (errno != EEXIST) return systemError("rename", place);
        free = fmt::format("{}-{}", name, number);
    }
    return std::optional(free);
}

std::optional<ExportError> PosixFileSystem::exportFile(const std::string& path, std::string_view content) {
    const auto target = resolvedLinks(path);
    const auto before = modeAt(target);
    if (before != 0 && !S_ISREG(before)) {
        return ExportError{ExportErrorKind::notAFile, "replace " + target + ": not a regular file"};
    }
    const auto successor = makeHiddenNeighbour(target, before == 0 ? newFileMode : recordMode);
    if (successor.descriptor < 0) return exportError({"open", target, errno});
    if (before != 0) static_cast<void>(::fchmod(successor.descriptor, before & 07777));
    const auto written = replaceWith(successor.descriptor, successor.path, target,
                                     [content](ByteSink& sink) { sink.append(content); });
    if (written) return std::nullopt;
    auto failure = written.error();
    failure.path = target;  // The path the user knows; the temporary one is gone.
    return exportError(failure);
}

}  // namespace tidewatch::platform
