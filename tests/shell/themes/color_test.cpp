#include "shell/themes/color.h"

#include <gtest/gtest.h>

namespace tidewatch {
namespace {

TEST(Color, Hex6TakesRedFromBits16To23GreenFrom8To15BlueFrom0To7) {
    const auto color = Color::hex6(0x336699);
    EXPECT_DOUBLE_EQ(color.red, 0x33 / 255.0);
    EXPECT_DOUBLE_EQ(color.green, 0x66 / 255.0);
    EXPECT_DOUBLE_EQ(color.blue, 0x99 / 255.0);
    EXPECT_DOUBLE_EQ(color.alpha, 1.0);
}

TEST(Color, Hex6IgnoresBitsAboveThe24th) {
    EXPECT_EQ(Color::hex6(0xFF000001), Color::hex6(0x000001));
}

TEST(Color, WhiteLevelIsAnOpaqueGrayAndWhiteAtIsTransparentWhite) {
    EXPECT_EQ(Color::whiteLevel(0.13), (Color{0.13, 0.13, 0.13, 1}));
    EXPECT_EQ(Color::whiteAt(0.13), (Color{1, 1, 1, 0.13}));
}

TEST(Color, AtMultipliesTheOpacity) {
    EXPECT_DOUBLE_EQ(Color::whiteAt(0.5).at(0.5).alpha, 0.25);
}

}  // namespace
}  // namespace tidewatch
