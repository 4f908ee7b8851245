#include "platform/posix/file_replacement.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>

#include "platform/posix/errno_text.h"
#include "platform/posix/file_descriptor.h"
#include "platform/posix/stat_file_info.h"

namespace tidewatch::platform {
namespace {

bool writeAll(int descriptor, std::string_view content) {
    while (!content.empty()) {
        const auto written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return false;
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// Writes to an open file, as long as that goes well.
class DescriptorSink final : public ByteSink {
public:
    explicit DescriptorSink(int descriptor) : descriptor_(descriptor) {}

    bool append(std::string_view piece) override {
        if (code_ == 0 && !writeAll(descriptor_, piece)) code_ = errno;
        return code_ == 0;
    }

    /// The error number of the piece that could not be written, 0 if there was none.
    [[nodiscard]] int code() const { return code_; }

private:
    int descriptor_;
    int code_ = 0;
};

std::optional<std::string> linkTarget(const std::string& path) {
    std::array<char, PATH_MAX> buffer{};
    const auto length = ::readlink(path.c_str(), buffer.data(), buffer.size());
    if (length <= 0) return std::nullopt;
    const std::string target(buffer.data(), static_cast<std::size_t>(length));
    return target.starts_with('/') ? target : path.substr(0, path.rfind('/') + 1) + target;
}

void syncDirectoryOf(const std::string& path) {
    const auto directory = path.substr(0, path.rfind('/') + 1);
    const FileDescriptor open(::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (open.isOpen()) static_cast<void>(::fsync(open.get()));
}

}  // namespace

std::string ReplacementFailure::message() const {
    return fmt::format("{} {}: {}", step, path, errnoText(code));
}

std::string resolvedLinks(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
    if (real) return real.get();
    constexpr int maxLinks = 40;
    auto place = path;
    for (int links = 0; links < maxLinks; ++links) {
        auto next = linkTarget(place);
        if (!next) return place;
        place = *std::move(next);
    }
    return path;
}

Result<FileInfo, ReplacementFailure> replaceWith(int descriptor, const std::string& successor,
                                                 const std::string& target, const ContentWriter& content) {
    FileDescriptor file(descriptor);
    DescriptorSink sink(file.get());
    const auto failed = [&](std::string_view step) {
        const int code = errno;
        ::unlink(successor.c_str());
        return ReplacementFailure{step, successor, code};
    };
    content(sink);
    if (sink.code() != 0) {
        errno = sink.code();
        return failed("write");
    }
    if (::fsync(file.get()) != 0) return failed("sync");
    struct stat written {};
    if (::fstat(file.get(), &written) != 0) return failed("inspect");
    if (!file.close()) return failed("close");
    if (std::rename(successor.c_str(), target.c_str()) != 0) return failed("rename");
    syncDirectoryOf(target);
    // Some file systems stamp a file once more as it is closed.
    struct stat placed {};
    const bool isOurs = ::stat(target.c_str(), &placed) == 0 && placed.st_dev == written.st_dev &&
                        placed.st_ino == written.st_ino && placed.st_size == written.st_size;
    return fileInfo(isOurs ? placed : written);
}

}  // namespace tidewatch::platform
