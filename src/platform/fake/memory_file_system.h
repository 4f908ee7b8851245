#pragma once

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/api/file_system.h"

namespace tidewatch::platform {

/// Files in memory, with fault injection. Thread-safe.
class MemoryFileSystem final : public FileSystem {
public:
    [[nodiscard]] std::string homeDirectory() const override { return "/home/user"; }
    Status createDirectories(const std::string& path) override;
    [[nodiscard]] FileResult<std::string> readFile(const std::string& path) const override;
    [[nodiscard]] FileResult<std::unique_ptr<FileReader>> openForReading(const std::string& path,
                                                                         std::uint64_t offset) const override;
    [[nodiscard]] FileResult<FileInfo> inspect(const std::string& path) const override;
    [[nodiscard]] FileStatus enumerate(const std::string& directory, HiddenFiles hidden,
                                       const FileVisitor& visit) const override;
    [[nodiscard]] RecordLock ensureRecordLock(const std::string& directory) override;
    using FileSystem::replaceAtomically;
    Result<FileInfo> replaceAtomically(const std::string& path, const ContentWriter& content) override;
    [[nodiscard]] Result<std::optional<std::string>> setAside(const std::string& path,
                                                              std::string_view mark) override;
    [[nodiscard]] std::optional<ExportError> exportFile(const std::string& path,
                                                        std::string_view content) override;

    /// Creates or replaces a file, bypassing all faults, with its parent directories. A replaced file gets a
    /// new identity.
    void put(const std::string& path, std::string_view content);

    /// Creates or replaces a file that reports this size, without content, and these times.
    void putSparse(const std::string& path, std::uint64_t size, FileTime accessed, FileTime modified);

    /// From now on the disk does not record accesses.
    void stopRecordingAccesses() { recordsAccesses_ = false; }

    /// Changes the modification time of an existing file: to a later one than that of all files, or to
    /// `time`.
    void touch(const std::string& path);
    void touch(const std::string& path, FileTime time);

    /// Appends to an existing file, which keeps its identity.
    void append(const std::string& path, std::string_view content);

    /// Truncates an existing file to `length` bytes.
    void truncate(const std::string& path, std::size_t length);

    /// A file's content; nullopt if there is none.
    [[nodiscard]] std::optional<std::string> content(const std::string& path) const;
    [[nodiscard]] bool hasDirectory(const std::string& path) const;

    /// The paths of all writes so far, failed ones included.
    [[nodiscard]] std::vector<std::string> writes() const;
    [[nodiscard]] int writeCount() const { return static_cast<int>(writes().size()); }

    /// Makes the n-th write from now on fail, 1 being the next; later ones succeed again.
    void failWrite(std::size_t n);

    /// A full disk fails all non-empty writes.
    enum class Disk { roomy, full };
    void setDisk(Disk disk);

    /// From now on replacing a file blocks until resume().
    void stall();
    void resume();

    /// Waits until a write is blocked by the stalled disk.
    void awaitStalledWrite();

    /// Makes creation of the directory, and everything below it, fail.
    void makeUnmakeable(const std::string& directory);

    /// Makes an existing file or directory unreadable.
    void makeUnreadable(const std::string& path);

    /// Removes a directory recursively.
    void removeDirectory(const std::string& path);

    /// The result of ensureRecordLock() from now on; initially `held`.
    void setRecordLock(RecordLock state);

    /// The date in the names of files set aside; initially "2026-01-15".
    void setDay(const std::string& day);

    /// The paths of successful exports.
    [[nodiscard]] std::vector<std::string> exports() const;

private:
    struct File {
        std::string content;
        std::uint64_t inode;
        FileTime modified;
        std::optional<std::uint64_t> sparseSize{};
        std::optional<FileTime> accessed{};
    };

    void replace(const std::string& path, std::string_view content);
    [[nodiscard]] std::optional<Error> fault(std::string_view content);
    [[nodiscard]] Status write(const std::string& path, std::string_view content);
    [[nodiscard]] FileResult<FileInfo> inspectLocked(const std::string& path) const;
    [[nodiscard]] FileTime accessedAt(const std::string& path, const FileInfo& info) const;
    [[nodiscard]] FileTime nextTime();
    [[nodiscard]] bool makeDirectories(const std::string& path);
    [[nodiscard]] std::vector<std::string> pathsBelow(const std::string& directory) const;

    mutable std::mutex mutex_;
    std::condition_variable stallChanged_;
    bool stalled_ = false;
    int stalledWrites_ = 0;
    std::map<std::string, File> files_;
    std::uint64_t changes_ = 0;  // to any file
    FileTime latest_{};          // modification time of any file
    std::set<std::string> directories_;
    std::set<std::string> unmakeable_;
    std::set<std::string> unreadable_;
    std::vector<std::string> writes_;
    std::vector<std::string> exports_;
    std::string day_ = "2026-01-15";
    RecordLock recordLock_ = RecordLock::held;
    bool recordsAccesses_ = true;
    std::size_t failingWrite_ = 0;
    Disk disk_ = Disk::roomy;
};

}  // namespace tidewatch::platform
