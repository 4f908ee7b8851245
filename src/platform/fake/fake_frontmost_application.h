#pragma once

#include <utility>

#include "platform/api/frontmost_application.h"

namespace tidewatch::platform {

/// No frontmost application until the test sets one.
class FakeFrontmostApplication final : public FrontmostApplication {
public:
    [[nodiscard]] std::optional<AppId> current() override { return front_; }

    void set(std::optional<AppId> app) { front_ = std::move(app); }

private:
    std::optional<AppId> front_;
};

}  // namespace tidewatch::platform
