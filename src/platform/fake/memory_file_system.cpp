#include "platform/fake/memory_file_system.h"

namespace tidewatch::platform {
namespace {

std::string parentOf(const std::string& path) {
    return path.substr(0, path.rfind('/'));
}

}  // namespace

Outcome MemoryFileSystem::createDirectories(const std::string& path) {
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

RecordHold MemoryFileSystem::holdRecord(const std::string& directory) {
    const std::lock_guard lock(mutex_);
    static_cast<void>(makeDirectories(directory));
    return hold_;
}

Result<std::string> MemoryFileSystem::readWhole(const std::string& path) const {
    const std::lock_guard lock(mutex_);
    const auto file = files_.find(path);
    if (file == files_.end()) return Error{"open " + path + ": No such file or directory"};
    if (unreadable_.contains(path)) return Error{"open " + path + ": Permission denied"};
    return file->second.content;
}

Result<FileInfo> MemoryFileSystem::inspect(const std::string& path) const {
    const std::lock_guard lock(mutex_);
    FileInfo info;
    if (directories_.contains(path)) {
        info.kind = FileKind::directory;
        return info;
    }
    const auto file = files_.find(path);
    if (file == files_.end()) return Error{"inspect " + path + ": No such file or directory"};
    info.size = file->second.content.size();
    info.modified += std::chrono::nanoseconds(file->second.modified);
    info.identity.inode = file->second.inode;
    return info;
}

Outcome MemoryFileSystem::replaceAtomically(const std::string& path, std::string_view content) {
    const std::lock_guard lock(mutex_);
    return write(path, content);
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

std::optional<ExportFailure> MemoryFileSystem::exportFile(const std::string& path, std::string_view content) {
    const std::lock_guard lock(mutex_);
    if (auto written = write(path, content); !written) {
        return ExportFailure{disk_ == Disk::full ? ExportFault::noSpace : ExportFault::other,
                             written.error().message};
    }
    exports_.push_back(path);
    return std::nullopt;
}

Outcome MemoryFileSystem::write(const std::string& path, std::string_view content) {
    writes_.push_back(path);
    if (const auto error = fault(content)) return *error;
    if (!directories_.contains(parentOf(path))) return Error{"open " + path + ": No such file or directory"};
    if (directories_.contains(path)) return Error{"rename " + path + ": Is a directory"};
    replace(path, content);
    return success();
}

void MemoryFileSystem::replace(const std::string& path, std::string_view content) {
    ++changes_;
    files_[path] = {std::string(content), changes_, changes_};
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

void MemoryFileSystem::touch(const std::string& path) {
    const std::lock_guard lock(mutex_);
    files_.at(path).modified = ++changes_;
}

void MemoryFileSystem::truncate(const std::string& path, std::size_t length) {
    const std::lock_guard lock(mutex_);
    auto& file = files_.at(path);
    file.content.resize(length);
    file.modified = ++changes_;
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

void MemoryFileSystem::setHold(RecordHold hold) {
    const std::lock_guard lock(mutex_);
    hold_ = hold;
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
