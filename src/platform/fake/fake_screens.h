#pragma once

#include <utility>

#include "platform/api/screens.h"

namespace tidewatch::platform {

/// Screens set by the test; initially one of 1920 by 1080 with a panel of 30 points at its top.
class FakeScreens final : public Screens {
public:
    [[nodiscard]] std::vector<Screen> all() const override { return screens_; }
    [[nodiscard]] std::optional<Screen> main() const override {
        return screens_.empty() ? std::nullopt : std::optional(screens_.front());
    }

    Connection onChanged(std::function<void()> changed) override {
        return changed_.connect(std::move(changed));
    }

    /// The first is the main one.
    void set(std::vector<Screen> screens) {
        screens_ = std::move(screens);
        changed_.emit();
    }

private:
    std::vector<Screen> screens_{{{0, 0, 1920, 1080}, {0, 30, 1920, 1050}}};
    Signal<> changed_;
};

}  // namespace tidewatch::platform
