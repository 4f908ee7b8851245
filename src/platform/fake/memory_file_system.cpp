#include "platform/fake/memory_file_system.h"

#include <algorithm>
#include <utility>

namespace tidewatch::platform {
namespace {

std::string parentOf(const std::string& path) {
    return path.substr(0, path.rfind('/'));
}

FileError absent(const std::string& operation, const std::string& path) {
    return {{operation + " " + path + ": No such file or directory"}, FileErrorKind::notFound};
}

FileError forbidden(const std::string& operation, const std::string& path) {
    return {{operation + " " + path + ": Permission denied"}, FileErrorKind::permissionDenied};
}

// The content of a file when it was opened.
class MemoryFileReader final : public FileReader {
public:
    MemoryFileReader(std::string content, std::uint64_t offset)
        : content_(std::move(content)), next_(std::min<std::uint64_t>(offset, content_.size())) {}

    [[nodiscard]] FileResult<std::size_t> read(std::span<char> buffer) override {
        const auto length = content_.copy(buffer.data(), buffer.size(), next_);
        next_ += length;
        return length;
    }

private:
    const std::string content_;
    std::size_t next_;
};

}  // namespace

Status MemoryFileSystem::createDirectories(const std::string& path) {
    const std::lock_guard lock(mutex_);
    if (!makeDirectories(path)) return Error{"make directory " + path + ": Permission denied"};
    return success();
}

bool MemoryFileSystem::makeDirectories(const std::string& path) {
    for (auto directory = path; !directory.empty(); directory = parentOf(directory)) {
        if (unmakeable_.contains(directory) || files_.contains(directory)) return false;
    }
    for (auto directory = path; !directory.empty(); directory = parentOf(directory)) {
        directories_.insert(directory);
    }
    return true;
}

RecordLock MemoryFileSystem::ensureRecordLock(const std::string& directory) {
    const std::lock_guard lock(mutex_);
    static_cast<void>(makeDirectories(directory));
    return recordLock_;
}

FileResult<std::string> MemoryFileSystem::readFile(const std::string& path) const {
    const std::lock_guard lock(mutex_);
    const auto file = files_.find(path);
    if (file == files_.end()) return absent("open", path);
    if (unreadable_.contains(path)) return forbidden("open", path);
    return file->second.content;
}

FileResult<std::unique_ptr<FileReader>> MemoryFileSystem::openForReading(const std::string& path,
                                                                         std::uint64_t offset) const {
    auto content = readFile(path);
    if (!content) return content.error();
    return std::unique_ptr<FileReader>(
        std::make_unique<MemoryFileReader>(std::move(content).value(), offset));
}

FileResult<FileInfo> MemoryFileSystem::inspect(const std::string& path) const {
    const std::lock_guard lock(mutex_);
    return inspectLocked(path);
}

FileResult<FileInfo> MemoryFileSystem::inspectLocked(const std::string& path) const {
    FileInfo info;
    if (directories_.contains(path)) {
        info.kind = FileKind::directory;
        return info;
    }
    const auto file = files_.find(path);
    if (file == files_.end()) return absent("inspect", path);
    info.size = file->second.sparseSize.value_or(file->second.content.size());
    info.modified = file->second.modified;
    info.identity.inode = file->second.inode;
    return info;
}

FileStatus MemoryFileSystem::enumerate(const std::string& directory, HiddenFiles hidden,
                                       const FileVisitor& visit) const {
    std::set<std::string> closed;
    {
        const std::lock_guard lock(mutex_);
        if (!directories_.contains(directory)) return absent("open", directory);
        if (unreadable_.contains(directory)) return forbidden("open", directory);
        closed = unreadable_;
    }
    for (const auto& path : pathsBelow(directory)) {
        const auto parent = parentOf(path);
        const bool skipped = hidden == HiddenFiles::skipped && path[parent.size() + 1] == '.';
        if (skipped || closed.contains(parent)) {
            closed.insert(path);
            continue;
        }
        const auto info = inspect(path);
        if (!info) continue;  // removed meanwhile
        const auto next = visit({path, info.value(), accessedAt(path, info.value()), recordsAccesses_});
        if (next == VisitAction::stop) break;
        if (next == VisitAction::skip) closed.insert(path);
    }
    return std::monostate{};
}

std::vector<std::string> MemoryFileSystem::pathsBelow(const std::string& directory) const {
    const std::lock_guard lock(mutex_);
    std::set<std::string> paths;
    const auto isBelow = [&](const std::string& path) { return path.starts_with(directory + "/"); };
    for (const auto& [path, file] : files_) {
        if (isBelow(path)) paths.insert(path);
    }
    for (const auto& path : directories_) {
        if (isBelow(path)) paths.insert(path);
    }
    return {paths.begin(), paths.end()};
}

Result<FileInfo> MemoryFileSystem::replaceAtomically(const std::string& path, const ContentWriter& content) {
    StringSink sink;
    content(sink);
    std::unique_lock lock(mutex_);
    ++stalledWrites_;
    stallChanged_.notify_all();
    stallChanged_.wait(lock, [this] { return !stalled_; });
    --stalledWrites_;
    if (const auto written = write(path, sink.text()); !written) return written.error();
    return inspectLocked(path).value();
}

Result<std::optional<std::string>> MemoryFileSystem::setAside(const std::string& path,
                                                              std::string_view mark) {
    const std::lock_guard lock(mutex_);
    auto file = files_.extract(path);
    if (file.empty()) return std::optional<std::string>();
    if (file.mapped().content.empty()) {
        files_.insert(std::move(file));
        return std::optional<std::string>();
    }
    const auto name = path + "." + std::string(mark) + "-" + day_;
    auto free = name;
    for (int number = 2; files_.contains(free); ++number) free = name + "-" + std::to_string(number);
    file.key() = free;
    files_.insert(std::move(file));
    if (unreadable_.erase(path) > 0) unreadable_.insert(free);
    return std::optional(free);
}

std::optional<ExportError> MemoryFileSystem::exportFile(const std::string& path, std::string_view content) {
    const std::lock_guard lock(mutex_);
    if (auto written = write(path, content); !written) {
        return ExportError{disk_ == Disk::full ? ExportErrorKind::noSpace : ExportErrorKind::other,
                           written.error().message};
    }
    exports_.push_back(path);
    return std::nullopt;
}

Status MemoryFileSystem::write(const std::string& path, std::string_view content) {
    writes_.push_back(path);
    if (const auto error = fault(content)) return *error;
    if (!directories_.contains(parentOf(path))) return Error{"open " + path + ": No such file or directory"};
    if (directories_.contains(path)) return Error{"rename " + path + ": Is a directory"};
    replace(path, content);
    return success();
}

void MemoryFileSystem::replace(const std::string& path, std::string_view content) {
    ++changes_;
    files_[path] = {std::string(content), changes_, nextTime()};
}

std::optional<Error> MemoryFileSystem::fault(std::string_view content) {
    if (writes_.size() == failingWrite_) return Error{"write: Input/output error"};
    if (disk_ == Disk::full && !content.empty()) return Error{"write: No space left on device"};
    return std::nullopt;
}

void MemoryFileSystem::put(const std::string& path, std::string_view content) {
    const std::lock_guard lock(mutex_);
    for (auto directory = parentOf(path); !directory.empty(); directory = parentOf(directory)) {
        directories_.insert(directory);
    }
    replace(path, content);
}

void MemoryFileSystem::putSparse(const std::string& path, std::uint64_t size, FileTime accessed,
                                 FileTime modified) {
    put(path, "");
    const std::lock_guard lock(mutex_);
    auto& file = files_.at(path);
    file.sparseSize = size;
    file.accessed = accessed;
    file.modified = modified;
}

FileTime MemoryFileSystem::accessedAt(const std::string& path, const FileInfo& info) const {
    const std::lock_guard lock(mutex_);
    const auto file = files_.find(path);
    return file == files_.end() ? info.modified : file->second.accessed.value_or(info.modified);
}

void MemoryFileSystem::touch(const std::string& path) {
    const std::lock_guard lock(mutex_);
    files_.at(path).modified = nextTime();
}

void MemoryFileSystem::touch(const std::string& path, FileTime time) {
    const std::lock_guard lock(mutex_);
    files_.at(path).modified = time;
    latest_ = std::max(latest_, time);
}

void MemoryFileSystem::append(const std::string& path, std::string_view content) {
    const std::lock_guard lock(mutex_);
    auto& file = files_.at(path);
    file.content += content;
    file.modified = nextTime();
}

FileTime MemoryFileSystem::nextTime() {
    return latest_ += std::chrono::nanoseconds(1);
}

void MemoryFileSystem::truncate(const std::string& path, std::size_t length) {
    const std::lock_guard lock(mutex_);
    auto& file = files_.at(path);
    file.content.resize(length);
    file.modified = nextTime();
}

std::optional<std::string> MemoryFileSystem::content(const std::string& path) const {
    const std::lock_guard lock(mutex_);
    const auto file = files_.find(path);
    return file == files_.end() ? std::nullopt : std::optional(file->second.content);
}

bool MemoryFileSystem::hasDirectory(const std::string& path) const {
    const std::lock_guard lock(mutex_);
    return directories_.contains(path);
}

std::vector<std::string> MemoryFileSystem::writes() const {
    const std::lock_guard lock(mutex_);
    return writes_;
}

void MemoryFileSystem::failWrite(std::size_t n) {
    const std::lock_guard lock(mutex_);
    failingWrite_ = writes_.size() + n;
}

void MemoryFileSystem::setDisk(Disk disk) {
    const std::lock_guard lock(mutex_);
    disk_ = disk;
}

void MemoryFileSystem::stall() {
    const std::lock_guard lock(mutex_);
    stalled_ = true;
}

void MemoryFileSystem::resume() {
    {
        const std::lock_guard lock(mutex_);
        stalled_ = false;
    }
    stallChanged_.notify_all();
}

void MemoryFileSystem::awaitStalledWrite() {
    std::unique_lock lock(mutex_);
    stallChanged_.wait(lock, [this] { return stalled_ && stalledWrites_ > 0; });
}

void MemoryFileSystem::makeUnmakeable(const std::string& directory) {
    const std::lock_guard lock(mutex_);
    unmakeable_.insert(directory);
}

void MemoryFileSystem::makeUnreadable(const std::string& path) {
    const std::lock_guard lock(mutex_);
    unreadable_.insert(path);
}

void MemoryFileSystem::removeDirectory(const std::string& path) {
    const std::lock_guard lock(mutex_);
    const auto isGone = [&](const std::string& name) { return name == path || name.starts_with(path + "/"); };
    std::erase_if(files_, [&](const auto& file) { return isGone(file.first); });
    std::erase_if(directories_, isGone);
}

void MemoryFileSystem::setRecordLock(RecordLock state) {
    const std::lock_guard lock(mutex_);
    recordLock_ = state;
}

void MemoryFileSystem::setDay(const std::string& day) {
    const std::lock_guard lock(mutex_);
    day_ = day;
}

std::vector<std::string> MemoryFileSystem::exports() const {
    const std::lock_guard lock(mutex_);
    return exports_;
}

}  // namespace tidewatch::platform
