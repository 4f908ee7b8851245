#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/fake/memory_file_system.h"

namespace tidewatch::test {

/// Forwards to another file system and notes which files are opened where.
class WatchedFiles final : public platform::FileSystem {
public:
    explicit WatchedFiles(platform::MemoryFileSystem& files) : files_(files) {}

    // The offsets at which files were opened since the last call.
    std::vector<std::uint64_t> takeOpened() { return std::exchange(opened_, {}); }

    // Runs once, before the next file is opened.
    mutable std::function<void()> beforeOpening;

    [[nodiscard]] std::string homeDirectory() const override { return files_.homeDirectory(); }
    platform::FileResult<std::unique_ptr<platform::FileReader>> openForReading(
        const std::string& path, std::uint64_t offset) const override {
        opened_.push_back(offset);
        if (beforeOpening) std::exchange(beforeOpening, nullptr)();
        return files_.openForReading(path, offset);
    }
    platform::FileStatus enumerate(const std::string& directory, platform::HiddenFiles hidden,
                                   const platform::FileVisitor& visit) const override {
        return files_.enumerate(directory, hidden, visit);
    }
    Status createDirectories(const std::string& path) override { return files_.createDirectories(path); }
    platform::FileResult<std::string> readFile(const std::string& path) const override {
        return files_.readFile(path);
    }
    platform::FileResult<platform::FileInfo> inspect(const std::string& path) const override {
        return files_.inspect(path);
    }
    platform::RecordLock ensureRecordLock(const std::string& directory) override {
        return files_.ensureRecordLock(directory);
    }
    Result<platform::FileInfo> replaceAtomically(const std::string& path,
                                                 const platform::ContentWriter& content) override {
        return files_.replaceAtomically(path, content);
    }
    Result<std::optional<std::string>> setAside(const std::string& path, std::string_view mark) override {
        return files_.setAside(path, mark);
    }
    std::optional<platform::ExportError> exportFile(const std::string& path,
                                                    std::string_view content) override {
        return files_.exportFile(path, content);
    }

private:
    platform::MemoryFileSystem& files_;
    mutable std::vector<std::uint64_t> opened_;
};

}  // namespace tidewatch::test
