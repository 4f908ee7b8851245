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

/// Files in memory, and everything that can go wrong with files. Safe from any thread.
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
    Status replaceAtomically(const std::string& path, std::string_view content) override;
    [[nodiscard]] Result<std::optional<std::string>> setAside(const std::string& path,
                                                              std::string_view mark) override;
    [[nodiscard]] std::optional<ExportError> exportFile(const std::string& path,
                                                        std::string_view content) override;

    /// Puts a file there, past all faults, with the directories above it. It is another file than the one
    /// that was there.
    void put(const std::string& path, std::string_view content);

    /// Somebody gives a file that exists another time, and leaves what it holds.
    void touch(const std::string& path);

    /// Cuts a file that exists down to its first `length` bytes.
    void truncate(const std::string& path, std::size_t length);

    /// What a file holds; nothing if there is none.
    [[nodiscard]] std::optional<std::string> content(const std::string& path) const;
    [[nodiscard]] bool hasDirectory(const std::string& path) const;

    /// The paths of the writes that were asked for so far, failed ones included.
    [[nodiscard]] std::vector<std::string> writes() const;
    [[nodiscard]] int writeCount() const { return static_cast<int>(writes().size()); }

    /// The n-th write from now on fails, 1 being the next; those after it succeed again.
    void failWrite(std::size_t n);

    /// No write of a byte or more succeeds while the disk is full.
    enum class Disk { roomy, full };
    void setDisk(Disk disk);

    /// From now on whoever replaces a file waits, until the disk is as before.
    void stall();
    void resume();

    /// Returns as soon as somebody waits for the stalled disk.
    void awaitStalledWrite();

    /// The directory, and with it all below it, cannot be made.
    void makeUnmakeable(const std::string& directory);

    /// The file or directory is there but may not be read.
    void makeUnreadable(const std::string& path);

    /// Somebody removes a directory with all that is in it.
    void removeDirectory(const std::string& path);

    /// Who has the data directory from now on; this process at first.
    void setRecordLock(RecordLock state);

    /// The date in the names of files that are set aside, "2026-01-15" at first.
    void setDay(const std::string& day);

    /// The paths of the exports that succeeded.
    [[nodiscard]] std::vector<std::string> exports() const;

private:
    struct File {
        std::string content;
        std::uint64_t inode;
        std::uint64_t modified;  // in changes of any file since the first one
    };

    void replace(const std::string& path, std::string_view content);
    [[nodiscard]] std::optional<Error> fault(std::string_view content);
    [[nodiscard]] Status write(const std::string& path, std::string_view content);
    [[nodiscard]] bool makeDirectories(const std::string& path);
    [[nodiscard]] std::vector<std::string> pathsBelow(const std::string& directory) const;

    mutable std::mutex mutex_;
    std::condition_variable stallChanged_;
    bool stalled_ = false;
    int stalledWrites_ = 0;
    std::map<std::string, File> files_;
    std::uint64_t changes_ = 0;
    std::set<std::string> directories_;
    std::set<std::string> unmakeable_;
    std::set<std::string> unreadable_;
    std::vector<std::string> writes_;
    std::vector<std::string> exports_;
    std::string day_ = "2026-01-15";
    RecordLock recordLock_ = RecordLock::held;
    std::size_t failingWrite_ = 0;
    Disk disk_ = Disk::roomy;
};

}  // namespace tidewatch::platform
