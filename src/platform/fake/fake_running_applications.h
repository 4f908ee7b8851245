#pragma once

#include <vector>

#include "platform/api/running_applications.h"

namespace tidewatch::platform {

/// Applications that the test sets. Records which were asked to close; none does.
class FakeRunningApplications final : public RunningApplications {
public:
    [[nodiscard]] std::vector<RunningApplication> list() override { return applications; }
    void askToClose(const RunningApplication& application) override { asked.push_back(application.handle); }

    std::vector<RunningApplication> applications;
    std::vector<std::uint64_t> asked;  ///< the handles, in order
};

}  // namespace tidewatch::platform
