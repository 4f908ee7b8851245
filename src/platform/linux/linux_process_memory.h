#pragma once

#include "platform/api/process_memory.h"

namespace tidewatch::platform {

/// The heap of the C library, and what the program, its libraries and its fonts map to read only.
class LinuxProcessMemory final : public ProcessMemory {
public:
    void releaseUnused() override;
};

}  // namespace tidewatch::platform
