#pragma once

#include "platform/api/process_memory.h"

namespace tidewatch::platform {

/// Counts how often memory was given back.
class FakeProcessMemory final : public ProcessMemory {
public:
    void giveBackUnused() override { ++timesGivenBack_; }

    [[nodiscard]] int timesGivenBack() const { return timesGivenBack_; }

private:
    int timesGivenBack_ = 0;
};

}  // namespace tidewatch::platform
