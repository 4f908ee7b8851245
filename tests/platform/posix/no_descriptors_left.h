#pragma once

namespace tidewatch::test {

/// While it lives, this process has no descriptor left for whoever connects to it.
class NoDescriptorsLeft final {
public:
    NoDescriptorsLeft();
    NoDescriptorsLeft(const NoDescriptorsLeft&) = delete;
    NoDescriptorsLeft& operator=(const NoDescriptorsLeft&) = delete;
    ~NoDescriptorsLeft();

    /// How often somebody could not be let in for that.
    [[nodiscard]] int refused() const;
};

}  // namespace tidewatch::test
