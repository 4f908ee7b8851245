#include "platform/posix/regular_file.h"

#include <dirent.h>
#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <set>
#include <utility>
#include <vector>

#include "platform/posix/system_error.h"

namespace tidewatch::platform {

namespace {

FileError notRegular(const std::string& path) {
    return {{"read " + path + ": not a regular file"}, FileErrorKind::unreadable};
}

FileError tooLarge(const std::string& path, std::size_t maxSize) {
    return {{fmt::format("read {}: more than {} bytes", path, maxSize)}, FileErrorKind::unreadable};
}

struct Close {
    void operator()(DIR* folder) const { ::closedir(folder); }
};

class FolderWalk final {
public:
    using Enter = std::function<bool(const std::string&, const std::string&)>;
    using Visit = std::function<void(const std::string&, const std::string&, const std::string&)>;

    FolderWalk(WalkLimits limits, const Enter& enter, const Visit& visit)
        : limits_(limits), enter_(enter), visit_(visit) {}

    // `depth` is that of the folder itself.
    bool walk(const std::string& path, const std::string& way, int depth) {
        const std::unique_ptr<DIR, Close> folder(::opendir(path.c_str()));
        struct stat status {};
        if (!folder || ::fstat(::dirfd(folder.get()), &status) != 0) return true;
        if (!seen_.emplace(status.st_dev, status.st_ino).second) return true;
        if (!enter_(path, way)) return true;
        bool complete = true;
        std::vector<std::string> below;
        while (const auto* entry = ::readdir(folder.get())) {
            const std::string name = entry->d_name;
            if (name == "." || name == "..") continue;
            if (++entries_ > limits_.entries) return false;
            if (isFolder(path + "/" + name, entry->d_type)) {
                // Prefer a folder's own name over that of a link to it.
                below.insert(entry->d_type == DT_DIR ? below.begin() : below.end(), name);
            } else {
                visit_(path, way, name);
            }
        }
        for (const auto& name : below) {
            complete =
                depth < limits_.depth && walk(path + "/" + name, way + name + "/", depth + 1) && complete;
        }
        return complete;
    }

private:
    static bool isFolder(const std::string& path, unsigned char type) {
        if (type != DT_LNK && type != DT_UNKNOWN) return type == DT_DIR;
        struct stat status {};
        return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
    }

    const WalkLimits limits_;
    const Enter& enter_;
    const Visit& visit_;
    std::set<std::pair<dev_t, ino_t>> seen_;
    std::size_t entries_ = 0;
};

}  // namespace

FileResult<FileDescriptor> openRegularFile(const std::string& path) {
    struct stat status {};
    // Checked before opening: opening a device can have side effects.
    if (::stat(path.c_str(), &status) != 0) return fileError("open", path);
    if (!S_ISREG(status.st_mode)) return notRegular(path);
    FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.isOpen()) return fileError("open", path);
    if (::fstat(file.get(), &status) != 0) return fileError("inspect", path);
    if (!S_ISREG(status.st_mode)) return notRegular(path);
    return FileResult<FileDescriptor>(std::move(file));
}

FileResult<std::string> readRegularFile(const std::string& path, std::size_t maxSize) {
    auto opened = openRegularFile(path);
    if (!opened) return opened.error();
    const auto file = std::move(opened).value();
    struct stat status {};
    if (::fstat(file.get(), &status) != 0) return fileError("inspect", path);
    const auto announced = static_cast<std::size_t>(status.st_size);
    if (announced > maxSize) return tooLarge(path, maxSize);

    // Room to detect the end of the file, and for the padding that parsers require.
    constexpr std::size_t slack = 64;
    std::string content(announced + slack, '\0');
    std::size_t length = 0;
    while (true) {
        const auto got = ::read(file.get(), content.data() + length, content.size() - length);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return fileError("read", path);
        if (got == 0) break;
        length += static_cast<std::size_t>(got);
        if (length > maxSize) return tooLarge(path, maxSize);
        if (length == content.size()) content.resize(2 * length);
    }
    content.resize(length);
    return content;
}

bool walkFolders(const std::string& path, WalkLimits limits, const FolderWalk::Enter& enter,
                 const FolderWalk::Visit& visit) {
    return FolderWalk(limits, enter, visit).walk(path, "", 0);
}

}  // namespace tidewatch::platform
