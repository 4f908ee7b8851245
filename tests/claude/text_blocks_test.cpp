// Both variants of looking at blocks, against a look at each byte.

#include "claude/text_blocks.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string_view>

namespace tidewatch {
namespace {

// With what may be read behind it.
using Block = std::array<char, textBlockSize + 2>;

template <class Test>
BlockMask maskOf(const Block& block, Test test) {
    BlockMask mask = 0;
    for (std::size_t i = 0; i < textBlockSize; ++i) mask |= BlockMask(test(&block[i]) ? 1 : 0) << i;
    return mask;
}

bool isOneOf(char c, std::string_view characters) {
    return characters.find(c) != std::string_view::npos;
}

template <class Blocks>
void expectTruth(const Block& block) {
    const auto masks = Blocks::stringMasks(block.data());
    EXPECT_EQ(masks.quotes, maskOf(block, [](const char* c) { return *c == '"'; }));
    EXPECT_EQ(masks.backslashes, maskOf(block, [](const char* c) { return *c == '\\'; }));
    EXPECT_EQ(masks.hasControls,
              maskOf(block, [](const char* c) { return static_cast<unsigned char>(*c) < 0x20; }) != 0);
    EXPECT_EQ(Blocks::escapeLetters(block.data()),
              maskOf(block, [](const char* c) { return isOneOf(*c, "\"\\/bfnrt"); }));
    const auto ends = maskOf(
        block, [](const char* c) { return isOneOf(c[0], "g67") && isOneOf(c[1], "e5") && c[2] == '"'; });
    EXPECT_EQ(Blocks::usageEnds(block.data()) & ends, ends) << "misses none";
    if (Blocks::usageEnds(block.data()) != 0) {
        EXPECT_TRUE(Blocks::mayEndUsage(block.data()));
    }
}

template <class Blocks>
void expectTruthOfAllBlocks() {
    std::mt19937 random(1);
    constexpr std::string_view likely = "\"\"\\\\/bfnrtug67e5xyz\x1f\x7f";
    for (int round = 0; round < 3000 && !testing::Test::HasFailure(); ++round) {
        SCOPED_TRACE(round);
        Block block;
        block.fill('x');
        // From a few bytes to all of them, so that there are blocks without any.
        const auto changes = std::uniform_int_distribution(0, round % 80)(random);
        for (int i = 0; i < changes; ++i) {
            const auto at = std::uniform_int_distribution<std::size_t>(0, block.size() - 1)(random);
            const auto any = std::uniform_int_distribution<std::size_t>(0, 255)(random);
            block[at] = round % 3 == 0 ? static_cast<char>(any) : likely[any % likely.size()];
        }
        expectTruth<Blocks>(block);
    }
    for (int c = 0; c < 256; ++c) {
        for (std::size_t at = 0; at < textBlockSize; ++at) {
            Block block;
            block.fill('x');
            block[at] = static_cast<char>(c);
            expectTruth<Blocks>(block);
        }
    }
}

TEST(PlainBlocks, SeeEveryByte) {
    expectTruthOfAllBlocks<PlainBlocks>();
}

TEST(WideBlocks, SeeEveryByte) {
    if (WideBlocks::isSupported()) expectTruthOfAllBlocks<WideBlocks>();
}

}  // namespace
}  // namespace tidewatch
