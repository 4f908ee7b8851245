#include "platform/linux/linux_process_memory.h"

#include <link.h>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <sstream>
#include <string>

namespace tidewatch::platform {
namespace {

/// What a library only reads, its code above all, can go at any time: the next touch of a page finds it in
/// the file. Segments that are written to, be it only by the linker at the start, stay.
int letGoOfWhatIsOnlyRead(dl_phdr_info* library, std::size_t /*size*/, void* /*context*/) {
    const auto page = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
    for (ElfW(Half) i = 0; i < library->dlpi_phnum; ++i) {
        const auto& segment = library->dlpi_phdr[i];
        if (segment.p_type != PT_LOAD || (segment.p_flags & PF_W) != 0) continue;
        const auto begin = library->dlpi_addr + segment.p_vaddr;
        const auto first = (begin + page - 1) / page * page;
        const auto last = (begin + segment.p_memsz) / page * page;
        if (first < last) ::madvise(reinterpret_cast<void*>(first), last - first, MADV_DONTNEED);
    }
    return 0;
}

/// Fonts are mapped whole, and read glyph by glyph when one is drawn for the first time.
void letGoOfFonts() {
    std::ifstream mappings("/proc/self/maps");
    for (std::string line; std::getline(mappings, line);) {
        if (!line.ends_with(".ttf") && !line.ends_with(".otf")) continue;
        std::istringstream fields(line);
        std::uintptr_t begin = 0;
        std::uintptr_t end = 0;
        char hyphen = 0;
        std::string access;
        fields >> std::hex >> begin >> hyphen >> end >> access;
        if (fields && access == "r--p") ::madvise(reinterpret_cast<void*>(begin), end - begin, MADV_DONTNEED);
    }
}

}  // namespace

void LinuxProcessMemory::releaseUnused() {
    ::malloc_trim(0);
    ::dl_iterate_phdr(letGoOfWhatIsOnlyRead, nullptr);
    letGoOfFonts();
}

}  // namespace tidewatch::platform
