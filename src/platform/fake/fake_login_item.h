#pragma once

#include <optional>
#include <utility>

#include "platform/api/login_item.h"

namespace tidewatch::platform {

/// A login item in memory; initially not registered.
class FakeLoginItem final : public LoginItem {
public:
    [[nodiscard]] bool isEnabled() const override { return enabled_; }
    Status registerItem() override { return set(true); }
    Status unregisterItem() override { return set(false); }

    /// Makes registration and unregistration fail with this error, until set to nullopt.
    void setFailure(std::optional<Error> failure) { failure_ = std::move(failure); }

private:
    Status set(bool enabled) {
        if (failure_) return *failure_;
        enabled_ = enabled;
        return success();
    }

    bool enabled_ = false;
    std::optional<Error> failure_;
};

}  // namespace tidewatch::platform
