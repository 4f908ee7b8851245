#pragma once

#include "platform/api/process_memory.h"

namespace tidewatch::platform {

/// The heap of the C library, and the mapped code of the program and its libraries.
class LinuxProcessMemory final : public ProcessMemory {
public:
    void giveBackUnused() override;
};

}  // namespace tidewatch::platform
