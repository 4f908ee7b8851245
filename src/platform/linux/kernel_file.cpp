#include "platform/linux/kernel_file.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <utility>

namespace tidewatch::platform {

namespace {

// Of interrupts on a large machine a hundred kilobytes; more is none of the files in use.
constexpr std::size_t maxContent = 4 * 1024 * 1024;
constexpr std::size_t firstBuffer = 8 * 1024;

// Non-blocking: what takes the place of a file may be a pipe.
int openForReading(int directory, const char* path) {
    return ::openat(directory, path, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
}

}  // namespace

std::optional<std::string> readKernelFile(int directory, const char* path) {
    const FileDescriptor file(openForReading(directory, path));
    if (!file.isOpen()) return std::nullopt;
    std::array<char, 4096> buffer{};
    const auto length = ::read(file.get(), buffer.data(), buffer.size());
    if (length < 0) return std::nullopt;
    return std::string(buffer.data(), static_cast<std::size_t>(length));
}

std::optional<std::string> readKernelFile(const std::string& path) {
    return readKernelFile(AT_FDCWD, path.c_str());
}

KernelFile::KernelFile(std::string path) : path_(std::move(path)) {}

std::optional<std::string_view> KernelFile::read() {
    if (!file_.isOpen()) file_ = FileDescriptor(openForReading(AT_FDCWD, path_.c_str()));
    if (!file_.isOpen()) return std::nullopt;
    if (buffer_.empty()) buffer_.resize(firstBuffer);
    std::size_t length = 0;
    while (length < maxContent) {
        const auto got = ::pread(file_.get(), buffer_.data() + length, buffer_.size() - length,
                                 static_cast<off_t>(length));
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) {
            file_ = FileDescriptor(-1);
            return std::nullopt;
        }
        if (got == 0) break;
        length += static_cast<std::size_t>(got);
        if (length == buffer_.size()) buffer_.resize(2 * length);
    }
    return std::string_view(buffer_.data(), length);
}

bool KernelFile::mayHaveChanged() const {
    if (!file_.isOpen()) return true;
    pollfd poll{.fd = file_.get(), .events = POLLIN | POLLOUT | POLLPRI, .revents = 0};
    if (::poll(&poll, 1, 0) < 0) return true;
    // A file without announcements is always ready for everything.
    return (poll.revents & (POLLERR | POLLPRI | POLLOUT)) != 0;
}

std::vector<std::string> namesIn(const std::string& directory, std::string_view prefix) {
    std::vector<std::string> names;
    const OpenDirectory open(::opendir(directory.c_str()));
    while (const auto* entry = open ? ::readdir(open.get()) : nullptr) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != ".." && name.starts_with(prefix)) names.emplace_back(name);
    }
    std::ranges::sort(names);
    return names;
}

}  // namespace tidewatch::platform
