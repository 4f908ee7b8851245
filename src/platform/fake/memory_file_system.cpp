#include "platform/fake/memory_file_system.h"

namespace tidewatch::platform {
namespace {

std::string parentOf(const std::string& path) {
    return path.substr(0, path.rfind('/'));
}

}  // namespace

Outcome MemoryFileSystem::createDirectories(const std::string& path) {
    const std::lock_guard lock(mutex_);
    for (auto directory = path; !directory.empty(); directory = parentOf(directory)) {
        if (unmakeable_.contains(directory)) return Error{"make directory " + path + ": Permission denied"};
        if (files_.contains(directory)) return Error{"make directory " + path + ": Not a directory"};
    }
    for (auto directory = path; !directory.empty(); directory = parentOf(directory)) {
        directories_.insert(directory);
    }
    return success();
}

Result<std::string> MemoryFileSystem::readWhole(const std::string& path) const {
    const std::lock_guard lock(mutex_);
    const auto file = files_.find(path);
    if (file == files_.end()) return Error{"open " + path + ": No such file or directory"};
    if (unreadable_.contains(path)) return Error{"open " + path + ": Permission denied"};
    return file->second;
}

Outcome MemoryFileSystem::replaceAtomically(const std::string& path, std::string_view content) {
    const std::lock_guard lock(mutex_);
    writes_.push_back(path);
    if (const auto error = fault(content)) return *error;
    if (!directories_.contains(parentOf(path))) return Error{"open " + path + ": No such file or directory"};
    if (directories_.contains(path)) return Error{"rename " + path + ": Is a directory"};
    files_[path] = content;
    return success();
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
    files_[path] = content;
}

void MemoryFileSystem::truncate(const std::string& path, std::size_t length) {
    const std::lock_guard lock(mutex_);
    files_.at(path).resize(length);
}

std::optional<std::string> MemoryFileSystem::content(const std::string& path) const {
    const std::lock_guard lock(mutex_);
    const auto file = files_.find(path);
    return file == files_.end() ? std::nullopt : std::optional(file->second);
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

}  // namespace tidewatch::platform
