#pragma once

#include <malloc.h>

#include "platform/api/process_memory.h"

namespace tidewatch::platform {

/// The heap of the C library.
class LinuxProcessMemory final : public ProcessMemory {
public:
    void giveBackUnused() override { ::malloc_trim(0); }
};

}  // namespace tidewatch::platform
