// Preloaded into the program before the C library: syncing the day's file takes five seconds, as on a disk
// that stalls.

#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <string>
#include <string_view>

extern "C" int fsync(int descriptor) {
    constexpr unsigned stall = 5;
    std::array<char, 4096> path{};
    const auto link = "/proc/self/fd/" + std::to_string(descriptor);
    const auto length = readlink(link.c_str(), path.data(), path.size());
    if (length > 0 &&
        std::string_view(path.data(), static_cast<std::size_t>(length)).ends_with("/today.json.tmp")) {
        sleep(stall);
    }
    return static_cast<int>(syscall(SYS_fsync, descriptor));
}
