#include "projects/color_hex.h"

#include <gtest/gtest.h>

#include "projects/project.h"

namespace tidewatch {
namespace {

TEST(ColorHexTest, ReadsSixDigitsWithOrWithoutAHashSignAndBlanks) {
    const RgbColor green{0x7B, 0xD8, 0x8F};
    for (const auto* text : {"#7BD88F", "7BD88F", "#7bd88f", "  #7BD88F\n", "\t7BD88F "}) {
        EXPECT_EQ(parseColorHex(text), green) << text;
    }
    EXPECT_EQ(parseColorHex("#000000"), (RgbColor{0, 0, 0}));
    EXPECT_EQ(parseColorHex("#FFFFFF"), (RgbColor{255, 255, 255}));
    EXPECT_EQ(parseColorHex("#010203"), (RgbColor{1, 2, 3}));
}

TEST(ColorHexTest, RejectsEverythingElse) {
    for (const auto* text : {"", "#", "##7BD88F", "#7BD88", "#7BD88F0", "#7BD8 8F", "# 7BD88F", "#7BD88G",
                             "-7BD88", "0x7BD8", "green", "#7BD8é"}) {
        EXPECT_EQ(parseColorHex(text), std::nullopt) << text;
    }
}

TEST(ProjectTest, AnInvalidColourShowsAsGreen) {
    EXPECT_EQ((Project{{}, "a", "#010203", false}.color()), (RgbColor{1, 2, 3}));
    EXPECT_EQ((Project{{}, "a", "verde", false}.color()), (RgbColor{52, 199, 89}));
}

}  // namespace
}  // namespace tidewatch
