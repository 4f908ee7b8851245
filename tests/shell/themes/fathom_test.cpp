#include "shell/themes/fathom.h"

#include <gtest/gtest.h>

#include <cmath>

#include "shell/themes/ochre_palette.h"

namespace tidewatch {
namespace {

int channel(double value) {
    return static_cast<int>(std::lround(value * 255));
}

struct HexCase {
    const char* name;
    Color color;
    int red, green, blue;
};

TEST(Fathom, BrandColoursHaveTheirHexValues) {
    const HexCase cases[] = {
        {"ink", fathom::ink, 0x0A, 0x0A, 0x0A},         {"carbon", fathom::carbon, 0x12, 0x12, 0x12},
        {"carbon2", fathom::carbon2, 0x18, 0x18, 0x18}, {"paper", fathom::paper, 0xF4, 0xF1, 0xEA},
        {"paper2", fathom::paper2, 0xFA, 0xFA, 0xF8},   {"fog", fathom::fog, 0x8A, 0x8A, 0x85},
        {"fog2", fathom::fog2, 0x5C, 0x5C, 0x58},       {"green", fathom::green, 0x7B, 0xD8, 0x8F},
        {"blue", fathom::blue, 0x6B, 0x9E, 0xD4},       {"red", fathom::red, 0xD1, 0x57, 0x57},
        {"amber", fathom::amber, 0xE8, 0xC4, 0x58},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(expected.name);
        EXPECT_EQ(channel(expected.color.red), expected.red);
        EXPECT_EQ(channel(expected.color.green), expected.green);
        EXPECT_EQ(channel(expected.color.blue), expected.blue);
        EXPECT_EQ(expected.color.alpha, 1);
    }
}

TEST(Fathom, WindowColoursCarryThreeDecimals) {
    EXPECT_EQ(fathom::inkNS, (Color{0.039, 0.039, 0.039, 1}));
    EXPECT_EQ(fathom::paperNS, (Color{0.957, 0.945, 0.918, 1}));
    EXPECT_EQ(fathom::greenNS, (Color{0.482, 0.847, 0.561, 1}));
    EXPECT_EQ(fathom::blueNS, (Color{0.42, 0.62, 0.831, 1}));
    EXPECT_EQ(fathom::redNS, (Color{0.819, 0.341, 0.341, 1}));
    EXPECT_EQ(fathom::amberNS, (Color{0.91, 0.769, 0.345, 1}));
    EXPECT_EQ(fathom::fogNS, (Color{0.541, 0.541, 0.521, 1}));
}

TEST(Fathom, WordsAndFamilies) {
    EXPECT_EQ(fathom::wordmark, "FATHOM");
    EXPECT_EQ(fathom::tagline, "Marca tu tiempo.");
    EXPECT_EQ(fathom::serifFamily, "Fraunces");
    EXPECT_EQ(fathom::monoFamily, "IBM Plex Mono");
    EXPECT_EQ(fathom::sansFamily, "Inter");
}

TEST(Fathom, FontMakersKeepSizeAndWeight) {
    EXPECT_EQ(fathom::serif(11, FontWeight::medium),
              (FontSpec{FontRole::serif, 11, FontWeight::medium, Digits::proportional}));
    EXPECT_EQ(fathom::mono(42, FontWeight::light),
              (FontSpec{FontRole::mono, 42, FontWeight::light, Digits::proportional}));
    EXPECT_EQ(fathom::sans(9.5, FontWeight::bold),
              (FontSpec{FontRole::sans, 9.5, FontWeight::bold, Digits::proportional}));
}

TEST(OchrePalette, AliasesTheTierColoursButForTheGrayOfWhatHasNoTier) {
    EXPECT_EQ(ochre_palette::productive, (Color{0.482, 0.847, 0.561, 1}));
    EXPECT_EQ(ochre_palette::neutral, (Color{0.42, 0.62, 0.831, 1}));
    EXPECT_EQ(ochre_palette::distracting, (Color{0.819, 0.341, 0.341, 1}));
    EXPECT_EQ(ochre_palette::amber, (Color{0.91, 0.769, 0.345, 1}));
    EXPECT_DOUBLE_EQ(ochre_palette::other.alpha, 0.5);
    EXPECT_DOUBLE_EQ(DashboardStyle::tierOther.alpha, 0.55);
    EXPECT_EQ(ochre_palette::other.at(1.1), DashboardStyle::tierOther);
}

// Also the colour of projects whose stored colour is invalid.
TEST(SystemColors, TheGreenIsOneOnBothGrounds) {
    for (const auto ground : {Appearance::light, Appearance::dark}) {
        EXPECT_EQ(systemColor(SystemColor::green, ground), Color::hex6(0x34C759));
    }
}

TEST(SystemColors, TheGrayIsTheSameOnBothGrounds) {
    EXPECT_EQ(systemColor(SystemColor::gray, Appearance::light),
              systemColor(SystemColor::gray, Appearance::dark));
}

TEST(SystemColors, TextIsDarkOnLightGroundAndLightOnDark) {
    for (const auto color : {SystemColor::primary, SystemColor::secondary}) {
        EXPECT_EQ(systemColor(color, Appearance::light).red, 0);
        EXPECT_EQ(systemColor(color, Appearance::dark).red, 1);
    }
    for (const auto appearance : {Appearance::light, Appearance::dark}) {
        EXPECT_LT(systemColor(SystemColor::secondary, appearance).alpha,
                  systemColor(SystemColor::primary, appearance).alpha);
    }
}

}  // namespace
}  // namespace tidewatch
