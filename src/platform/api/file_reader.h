#pragma once

#include <cstddef>
#include <span>

#include "platform/api/file_error.h"

namespace tidewatch::platform {

/// An open file, read sequentially. Keeps reading the same file even if the path is replaced. Not
/// thread-safe.
class FileReader {
public:
    virtual ~FileReader() = default;

    /// Fills `buffer` with the next bytes and returns their number: fewer than fit only at the end of the
    /// file, 0 at its end. Later calls return what was appended meanwhile.
    [[nodiscard]] virtual FileResult<std::size_t> read(std::span<char> buffer) = 0;
};

}  // namespace tidewatch::platform
