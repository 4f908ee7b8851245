#pragma once

#include "platform/api/process_memory.h"

namespace tidewatch::platform {

/// Counts the calls of releaseUnused().
class FakeProcessMemory final : public ProcessMemory {
public:
    void releaseUnused() override { ++releaseCount_; }

    [[nodiscard]] int releaseCount() const { return releaseCount_; }

private:
    int releaseCount_ = 0;
};

}  // namespace tidewatch::platform
