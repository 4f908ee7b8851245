#pragma once

#include <cstddef>
#include <span>

#include "platform/api/file_error.h"

namespace tidewatch::platform {

/// A file that is being read from one place on. It gives what the file held even if another takes its name
/// meanwhile. For one thread at a time.
class FileReader {
public:
    virtual ~FileReader() = default;

    /// Fills `buffer` with the bytes that come next and tells how many: fewer than fit only where the file
    /// ends, none at its end. What is appended later is given by a later call.
    [[nodiscard]] virtual FileResult<std::size_t> read(std::span<char> buffer) = 0;
};

}  // namespace tidewatch::platform
