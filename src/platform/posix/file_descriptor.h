#pragma once

#include <unistd.h>

#include <utility>

namespace tidewatch::platform {

/// Owns an open file descriptor, or none (-1).
class FileDescriptor final {
public:
    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        if (descriptor_ >= 0) ::close(descriptor_);
        descriptor_ = std::exchange(other.descriptor_, -1);
        return *this;
    }
    ~FileDescriptor() {
        if (descriptor_ >= 0) ::close(descriptor_);
    }

    [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }
    [[nodiscard]] int get() const { return descriptor_; }

    /// Releases ownership; the caller must close it.
    [[nodiscard]] int release() { return std::exchange(descriptor_, -1); }

    /// Closes it and returns whether that succeeded; some file systems report a failed write only here.
    [[nodiscard]] bool close() { return ::close(std::exchange(descriptor_, -1)) == 0; }

private:
    int descriptor_;
};

}  // namespace tidewatch::platform
