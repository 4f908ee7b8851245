#include "platform/linux/linux_process_memory.h"

#include <malloc.h>

namespace tidewatch::platform {

void LinuxProcessMemory::releaseUnused() {
    ::malloc_trim(0);
}

}  // namespace tidewatch::platform
