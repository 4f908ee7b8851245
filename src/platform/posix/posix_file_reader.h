#pragma once

#include <string>
#include <utility>

#include "platform/api/file_reader.h"
#include "platform/posix/file_descriptor.h"

namespace tidewatch::platform {

/// Reads from an open descriptor.
class PosixFileReader final : public FileReader {
public:
    /// Reads from the descriptor's position; `path` is for error messages.
    PosixFileReader(FileDescriptor file, std::string path) : file_(std::move(file)), path_(std::move(path)) {}

    [[nodiscard]] FileResult<std::size_t> read(std::span<char> buffer) override;

private:
    FileDescriptor file_;
    const std::string path_;
};

}  // namespace tidewatch::platform
