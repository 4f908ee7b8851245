#include "platform/linux/linux_process_memory.h"

#include <malloc.h>
#include <sys/mman.h>

#include <cstdint>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

namespace tidewatch::platform {
namespace {

/// Begins the path of code that an interpreter made and that no file on disk has.
constexpr std::string_view madeInMemory = "/memfd:";

/// Code is never written to, so its pages can go at any time: the next call into one finds it in the file.
void letGoOfCode() {
    std::ifstream mappings("/proc/self/maps");
    for (std::string line; std::getline(mappings, line);) {
        std::istringstream fields(line);
        std::uintptr_t begin = 0;
        std::uintptr_t end = 0;
        char hyphen = 0;
        std::string access, offset, device, inode, path;
        fields >> std::hex >> begin >> hyphen >> end >> access >> offset >> device >> inode >> path;
        if (!fields || access != "r-xp" || path.front() != '/' || path.starts_with(madeInMemory)) continue;
        ::madvise(reinterpret_cast<void*>(begin), end - begin, MADV_DONTNEED);
    }
}

}  // namespace

void LinuxProcessMemory::giveBackUnused() {
    ::malloc_trim(0);
    letGoOfCode();
}

}  // namespace tidewatch::platform
