#pragma once

#include "platform/api/process_memory.h"

namespace tidewatch::platform {

/// The heap of the C library.
class LinuxProcessMemory final : public ProcessMemory {
public:
    void releaseUnused() override;
};

}  // namespace tidewatch::platform
