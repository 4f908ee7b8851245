#include "platform/posix/posix_file_reader.h"

#include <unistd.h>

#include "platform/posix/system_error.h"

namespace tidewatch::platform {

FileResult<std::size_t> PosixFileReader::read(std::span<char> buffer) {
    std::size_t length = 0;
    while (length < buffer.size()) {
        const auto got = ::read(file_.get(), buffer.data() + length, buffer.size() - length);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return fileError("read", path_);
        if (got == 0) break;
        length += static_cast<std::size_t>(got);
    }
    return length;
}

}  // namespace tidewatch::platform
