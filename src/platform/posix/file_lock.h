#pragma once

#include <string>

#include "platform/posix/file_descriptor.h"

namespace tidewatch::platform {

/// An advisory lock on a file, held until this object is destroyed or the process ends in any way.
class FileLock final {
public:
    enum class State { held, heldByAnother, unavailable };

    /// Creates the file at `path`, private to its owner, if it is missing; its directory must exist.
    explicit FileLock(const std::string& path);

    [[nodiscard]] State state() const { return state_; }

    /// Whether the file at `path` is still the locked one. Another instance would lock the file at `path`.
    [[nodiscard]] bool isAt(const std::string& path) const;

private:
    FileDescriptor file_;
    State state_ = State::unavailable;
};

}  // namespace tidewatch::platform
