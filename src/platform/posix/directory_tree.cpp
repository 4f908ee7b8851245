#include "platform/posix/directory_tree.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>

#include <memory>
#include <utility>
#include <vector>

#include "platform/posix/file_descriptor.h"
#include "platform/posix/stat_file_info.h"
#include "platform/posix/system_error.h"

namespace tidewatch::platform {

namespace {

struct CloseDirectory {
    void operator()(DIR* directory) const { ::closedir(directory); }
};
using OpenDirectory = std::unique_ptr<DIR, CloseDirectory>;

OpenDirectory openDirectory(const std::string& path, int flags) {
    FileDescriptor descriptor(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | flags));
    if (!descriptor.isOpen()) return nullptr;
    OpenDirectory directory(::fdopendir(descriptor.get()));
    if (directory) static_cast<void>(descriptor.release());
    return directory;
}

bool isThere(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0;
}

bool isDotOrDots(std::string_view name) {
    return name == "." || name == "..";
}

class TreeEnumeration final {
public:
    TreeEnumeration(HiddenFiles hidden, const FileVisitor& visit) : hidden_(hidden), visit_(visit) {}

    FileStatus run(const std::string& root) {
        auto directory = openDirectory(root, 0);
        if (!directory) {
            auto error = fileError("open", root);
            // ENOTDIR is "not found" for a path through a file, but not for a path to a file.
            if (error.kind == FileErrorKind::notFound && isThere(root))
                error.kind = FileErrorKind::unreadable;
            return error;
        }
        readEntries(*directory, root);
        while (!stopped_ && !pending_.empty()) {
            const auto path = std::move(pending_.back());
            pending_.pop_back();
            // It was not a link when found; do not follow one that has replaced it.
            directory = openDirectory(path, O_NOFOLLOW);
            if (directory) readEntries(*directory, path);
        }
        return std::monostate{};
    }

private:
    void readEntries(DIR& directory, const std::string& directoryPath) {
        auto path = directoryPath;
        if (!path.ends_with('/')) path += '/';
        const auto length = path.size();
        while (const auto* entry = ::readdir(&directory)) {
            const std::string_view name = entry->d_name;
            if (isDotOrDots(name) || (hidden_ == HiddenFiles::skipped && name.starts_with('.'))) continue;
            struct stat status {};
            constexpr int ofTheEntryItself = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT;
            if (::fstatat(::dirfd(&directory), entry->d_name, &status, ofTheEntryItself) != 0) continue;
            path.resize(length);
            path += name;
            if (S_ISREG(status.st_mode) && status.st_dev != device_) enterDevice(directory, status.st_dev);
            const auto next = visit_({path, fileInfo(status), fileTime(status.st_atim), accessIsRecorded_});
            if (next == VisitAction::proceed && S_ISDIR(status.st_mode)) pending_.push_back(path);
            stopped_ = next == VisitAction::stop;
            if (stopped_) return;
        }
    }

    // Asked once a volume, since on a share each question is one to its server.
    void enterDevice(DIR& directory, dev_t device) {
        struct statvfs status {};
        device_ = device;
        accessIsRecorded_ =
            ::fstatvfs(::dirfd(&directory), &status) != 0 || (status.f_flag & ST_NOATIME) == 0;
    }

    const HiddenFiles hidden_;
    const FileVisitor& visit_;
    dev_t device_ = 0;  // of the last regular file
    bool accessIsRecorded_ = true;
    std::vector<std::string> pending_;  // directories still to be read
    bool stopped_ = false;
};

}  // namespace

FileStatus enumerateDirectoryTree(const std::string& root, HiddenFiles hidden, const FileVisitor& visit) {
    return TreeEnumeration(hidden, visit).run(root);
}

}  // namespace tidewatch::platform
