#pragma once

#include <utility>

#include "platform/api/process_endings.h"

namespace tidewatch::platform {

/// Ends that come when a test says so.
class FakeProcessEndings final : public ProcessEndings {
public:
    void onAsked(std::function<void()> asked) override { asked_ = std::move(asked); }
    void onSessionEnding(std::function<void()> saving) override { saving_ = std::move(saving); }
    void onDisplayLost(std::function<void()> lost) override { lost_ = std::move(lost); }

    void ask() const { asked_(); }
    void endSession() const { saving_(); }
    void loseDisplay() const { lost_(); }

private:
    std::function<void()> asked_;
    std::function<void()> saving_;
    std::function<void()> lost_;
};

}  // namespace tidewatch::platform
