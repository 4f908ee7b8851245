#pragma once

#include <string>
#include <utility>

#include "platform/api/file_reader.h"
#include "platform/posix/file_descriptor.h"

namespace tidewatch::platform {

/// Reads what an open descriptor gives.
class PosixFileReader final : public FileReader {
public:
    /// From where the descriptor stands; `path` is for the words of errors.
    PosixFileReader(FileDescriptor file, std::string path) : file_(std::move(file)), path_(std::move(path)) {}

    [[nodiscard]] FileResult<std::size_t> read(std::span<char> buffer) override;

private:
    FileDescriptor file_;
    const std::string path_;
};

}  // namespace tidewatch::platform
