#pragma once

#include <string>

namespace tidewatch::platform {

/// An advisory lock on a file, held until this object is destroyed or the process ends in any way.
class FileLock final {
public:
    enum class State { held, heldByAnother, unavailable };

    /// Makes the file at `path` if it is missing; its directory must exist.
    explicit FileLock(const std::string& path);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    [[nodiscard]] State state() const { return state_; }

private:
    int descriptor_;
    State state_;
};

}  // namespace tidewatch::platform
