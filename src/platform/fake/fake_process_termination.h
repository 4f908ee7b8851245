#pragma once

#include <utility>

#include "platform/api/process_termination.h"

namespace tidewatch::platform {

/// Termination events triggered by the test.
class FakeProcessTermination final : public ProcessTermination {
public:
    void onRequested(std::function<void()> requested) override { requested_ = std::move(requested); }
    void onSessionEnding(std::function<void()> saving) override { saving_ = std::move(saving); }
    void onDisplayLost(std::function<void()> lost) override { lost_ = std::move(lost); }

    void request() const { requested_(); }
    void endSession() const { saving_(); }
    void loseDisplay() const { lost_(); }

private:
    std::function<void()> requested_;
    std::function<void()> saving_;
    std::function<void()> lost_;
};

}  // namespace tidewatch::platform
