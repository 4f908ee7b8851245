#include "platform/posix/directory_tree.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>

#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string_view>
#include <system_error>
#include <thread>
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

// Below this number of entries a second thread would not pay off.
constexpr std::size_t entriesOfALargeTree = 4096;
constexpr std::size_t batchLength = 256;

// A part of the entries of a directory.
struct Batch {
    struct Entry {
        std::string name;
        FoundFile found;  // without the path
    };
    Entry& add() {
        if (length == entries.size()) entries.emplace_back();
        return entries[length++];
    }

    std::vector<Entry> entries;  // kept, with the memory of their names
    std::size_t length = 0;      // of those in use
};

// Directories are read by up to two threads, most of whose time the kernel takes. What they find is told to
// the visitor by one at a time.
class TreeEnumeration final {
public:
    TreeEnumeration(HiddenFiles hidden, const FileVisitor& visit) : hidden_(hidden), visit_(visit) {}

    FileStatus run(const std::string& root) {
        const auto directory = openDirectory(root, 0);
        if (!directory) {
            auto error = fileError("open", root);
            // ENOTDIR is "not found" for a path through a file, but not for a path to a file.
            if (error.kind == FileErrorKind::notFound && isThere(root))
                error.kind = FileErrorKind::unreadable;
            return error;
        }
        Reader reader(*this);
        reader.read(*directory, root);
        {
            const std::lock_guard lock(mutex_);
            --readers_;
        }
        readPending(reader);
        if (helper_.joinable()) helper_.join();
        return std::monostate{};
    }

private:
    // What one thread needs to read directories.
    class Reader final {
    public:
        explicit Reader(TreeEnumeration& owner) : owner_(owner) {}

        void read(DIR& directory, const std::string& path) {
            while (const auto* entry = ::readdir(&directory)) {
                const std::string_view name = entry->d_name;
                if (isDotOrDots(name) || (owner_.hidden_ == HiddenFiles::skipped && name.starts_with('.')))
                    continue;
                struct stat status {};
                constexpr int ofTheEntryItself = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT;
                if (::fstatat(::dirfd(&directory), entry->d_name, &status, ofTheEntryItself) != 0) continue;
                if (S_ISREG(status.st_mode) && status.st_dev != device_)
                    enterDevice(directory, status.st_dev);
                auto& slot = batch_.add();
                slot.name = name;
                slot.found = {{}, fileInfo(status), fileTime(status.st_atim), accessIsRecorded_};
                if (batch_.length == batchLength && !owner_.tell(batch_, path)) return;
            }
            owner_.tell(batch_, path);
        }

    private:
        // Asked once a volume, since on a share each question is one to its server.
        void enterDevice(DIR& directory, dev_t device) {
            struct statvfs status {};
            device_ = device;
            accessIsRecorded_ =
                ::fstatvfs(::dirfd(&directory), &status) != 0 || (status.f_flag & ST_NOATIME) == 0;
        }

        TreeEnumeration& owner_;
        Batch batch_;
        dev_t device_ = 0;  // of the last regular file
        bool accessIsRecorded_ = true;
    };

    // Returns whether the enumeration goes on.
    bool tell(Batch& batch, const std::string& directory) {
        const std::lock_guard lock(mutex_);
        auto path = directory;
        if (!path.ends_with('/')) path += '/';
        const auto length = path.size();
        for (std::size_t i = 0; i < batch.length && !stopped_; ++i) {
            auto& [name, found] = batch.entries[i];
            path.resize(length);
            path += name;
            found.path = path;
            const auto next = visit_(found);
            if (next == VisitAction::proceed && found.info.kind == FileKind::directory)
                pending_.push_back(path);
            stopped_ = next == VisitAction::stop;
        }
        told_ += batch.length;
        batch.length = 0;
        if (told_ >= entriesOfALargeTree && !pending_.empty()) startHelper();
        changed_.notify_one();
        return !stopped_;
    }

    void startHelper() {
        if (std::exchange(helperIsStarted_, true)) return;
        try {
            helper_ = std::thread([this] {
                Reader reader(*this);
                readPending(reader);
            });
        } catch (const std::system_error&) {
            // This thread reads everything, then.
        }
    }

    void readPending(Reader& reader) {
        std::unique_lock lock(mutex_);
        while (true) {
            changed_.wait(lock, [this] { return stopped_ || !pending_.empty() || readers_ == 0; });
            if (stopped_ || pending_.empty()) break;
            const auto path = std::move(pending_.back());
            pending_.pop_back();
            ++readers_;
            lock.unlock();
            // It was not a link when found; do not follow one that has replaced it.
            if (const auto directory = openDirectory(path, O_NOFOLLOW)) reader.read(*directory, path);
            lock.lock();
            --readers_;
        }
        changed_.notify_one();
    }

    const HiddenFiles hidden_;
    const FileVisitor& visit_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<std::string> pending_;  // directories still to be read
    int readers_ = 1;                   // directories being read, at first the root
    std::size_t told_ = 0;
    bool stopped_ = false;
    bool helperIsStarted_ = false;
    std::thread helper_;
};

}  // namespace

FileStatus enumerateDirectoryTree(const std::string& root, HiddenFiles hidden, const FileVisitor& visit) {
    return TreeEnumeration(hidden, visit).run(root);
}

}  // namespace tidewatch::platform
