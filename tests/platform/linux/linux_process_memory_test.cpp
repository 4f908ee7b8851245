#include "platform/linux/linux_process_memory.h"

#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace tidewatch::platform {
namespace {

long residentKilobytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmRSS:")) return std::stol(line.substr(6));
    }
    return 0;
}

TEST(LinuxProcessMemory, GivesBackWhatWasFreed) {
    std::vector<std::unique_ptr<std::string>> blocks;
    for (int block = 0; block < 40'000; ++block) blocks.push_back(std::make_unique<std::string>(1000, 'x'));
    // A block at the end keeps the allocator from releasing everything below it by itself.
    auto last = std::move(blocks.back());
    blocks.clear();
    blocks.shrink_to_fit();
    const auto before = residentKilobytes();
    LinuxProcessMemory().releaseUnused();
    EXPECT_LT(residentKilobytes(), before - 20'000);
    EXPECT_EQ(last->size(), 1000U);
}

}  // namespace
}  // namespace tidewatch::platform
