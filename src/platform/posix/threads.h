#pragma once

#include "platform/api/background.h"
#include "platform/api/main_loop.h"

namespace tidewatch::platform {

/// A thread for each queue.
class Threads final : public Background {
public:
    /// `mainLoop` must outlive it.
    explicit Threads(MainLoop& mainLoop) : mainLoop_(mainLoop) {}

    [[nodiscard]] std::unique_ptr<JobQueue> makeQueue(const std::string& name) override;

private:
    MainLoop& mainLoop_;
};

}  // namespace tidewatch::platform
