#pragma once

namespace tidewatch::test {

/// During its lifetime, this process has no file descriptor left to accept connections.
class NoDescriptorsLeft final {
public:
    NoDescriptorsLeft();
    NoDescriptorsLeft(const NoDescriptorsLeft&) = delete;
    NoDescriptorsLeft& operator=(const NoDescriptorsLeft&) = delete;
    ~NoDescriptorsLeft();

    /// How often a connection could not be accepted.
    [[nodiscard]] int refused() const;
};

}  // namespace tidewatch::test
