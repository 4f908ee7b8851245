#include "platform/linux/posix_file_system.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <utility>

#include "platform/linux/file_descriptor.h"

namespace tidewatch::platform {
namespace {

constexpr mode_t directoryMode = 0700;
constexpr mode_t fileMode = 0600;

Error systemError(std::string_view operation, const std::string& path) {
    return {fmt::format("{} {}: {}", operation, path, std::strerror(errno))};
}

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
    // Opening a named pipe would wait for its writer.
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.isOpen()) return systemError("open", path);
    struct stat status {};
    if (::fstat(file.get(), &status) != 0) return systemError("inspect", path);
    if (!S_ISREG(status.st_mode)) return Error{"read " + path + ": not a regular file"};

    // Room for the end of the file to be seen, and for what parsers want to lie behind a text.
    constexpr std::size_t slack = 64;
    std::string content(static_cast<std::size_t>(status.st_size) + slack, '\0');
    std::size_t length = 0;
    while (true) {
        const auto got = ::read(file.get(), content.data() + length, content.size() - length);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return systemError("read", path);
        if (got == 0) break;
        length += static_cast<std::size_t>(got);
        if (length == content.size()) content.resize(2 * length);
    }
    content.resize(length);
    return content;
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
