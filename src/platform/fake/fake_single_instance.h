#pragma once

#include <functional>
#include <utility>

#include "platform/api/single_instance.h"

namespace tidewatch::platform {

/// A claim's result set by the test; initially this is the only instance.
class FakeSingleInstance final : public SingleInstance {
public:
    [[nodiscard]] InstanceClaim claim(const std::string&) override { return claim_; }
    void onReopen(std::function<void()> reopen) override { reopen_ = std::move(reopen); }

    void setClaim(InstanceClaim claim) { claim_ = claim; }

    /// A later start hands over.
    void handOver() const {
        if (reopen_) reopen_();
    }

private:
    InstanceClaim claim_ = InstanceClaim::first;
    std::function<void()> reopen_;
};

}  // namespace tidewatch::platform
