#include "platform/posix/system_randomness.h"

#include <gtest/gtest.h>

#include <set>

namespace tidewatch::platform {
namespace {

TEST(SystemRandomness, GivesOtherBitsEachTime) {
    SystemRandomness randomness;
    std::set<std::uint64_t> seen;
    for (int i = 0; i < 1000; ++i) seen.insert(randomness.bits());
    EXPECT_EQ(seen.size(), 1000U);
}

}  // namespace
}  // namespace tidewatch::platform
