#include "platform/linux/posix_file_system.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

#include "platform/linux/file_descriptor.h"
#include "platform/linux/guarded_file.h"
#include "platform/linux/system_error_text.h"

namespace tidewatch::platform {
namespace {

constexpr mode_t directoryMode = 0700;
constexpr mode_t fileMode = 0600;

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

bool isDirectory(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// The file behind a symbolic link, so that the link itself is not replaced.
std::string followed(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
    return real ? std::string(real.get()) : path;
}

bool writeAll(int descriptor, std::string_view content) {
    while (!content.empty()) {
        const auto written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return false;
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

std::optional<Error> writeAndSync(const std::string& path, std::string_view content) {
    // What a killed writer left may be anything by now; a new file is nobody else's.
    ::unlink(path.c_str());
    FileDescriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, fileMode));
    if (!file.isOpen()) return systemError("open", path);
    std::optional<Error> error;
    if (!writeAll(file.get(), content)) {
        error = systemError("write", path);
    } else if (::fsync(file.get()) != 0) {
        error = systemError("sync", path);
    } else if (!file.close()) {
        error = systemError("close", path);
    }
    if (error) ::unlink(path.c_str());
    return error;
}

}  // namespace

PosixFileSystem::PosixFileSystem() : home_(userHomeDirectory()) {}

PosixFileSystem::PosixFileSystem(std::string homeDirectory) : home_(std::move(homeDirectory)) {}

Outcome PosixFileSystem::createDirectories(const std::string& path) {
    for (auto end = path.find('/', 1);; end = path.find('/', end + 1)) {
        const auto part = path.substr(0, end);
        if (::mkdir(part.c_str(), directoryMode) != 0) {
            auto error = systemError("make directory", part);
            if (!isDirectory(part)) return error;
        }
        if (end == std::string::npos) return success();
    }
}

Result<std::string> PosixFileSystem::readWhole(const std::string& path) const {
    // A record is as long as its years: there is no size that it must not have.
    return readRegularFile(path, anySize);
}

Outcome PosixFileSystem::replaceAtomically(const std::string& path, std::string_view content) {
    const auto target = followed(path);
    const auto successor = target + ".tmp";
    if (auto error = writeAndSync(successor, content)) return *std::move(error);
    if (::rename(successor.c_str(), target.c_str()) != 0) {
        auto error = systemError("rename", successor);
        ::unlink(successor.c_str());
        return error;
    }
    return success();
}

}  // namespace tidewatch::platform
