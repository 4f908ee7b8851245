#include "shell/themes/theme_registry.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string>

namespace tidewatch {
namespace {

constexpr double byte = 255.0;
const Color ink{10 / byte, 10 / byte, 10 / byte, 1};
const Color paper{244 / byte, 241 / byte, 234 / byte, 1};
const Color fog{138 / byte, 138 / byte, 133 / byte, 1};
const Color green{123 / byte, 216 / byte, 143 / byte, 1};

using enum FontRole;
using enum FontWeight;

/// The panel's expected values, one row per theme, in menu order.
struct Row {
    const char* id;
    const char* displayName;
    PanelSize size;
    double cornerRadius;
    PanelPadding padding;
    PanelBackground background;
    std::optional<Color> primaryText;  ///< nullopt for the desktop's own
    std::optional<Color> secondaryText;
    std::optional<Color> accentActive;
    std::optional<Color> accentIdle;
    std::optional<std::string> label;
    FontSpec labelFont;
    double labelTracking;
    FontSpec digitFont;
    bool showsStatusDot;
    bool showsDailyTotal;
    FontSpec dailyTotalFont;
};

constexpr auto tabular = Digits::monospaced;

// clang-format off: a table is read in rows
const std::array<Row, 5>& rows() {
    static const std::array<Row, 5> table = {{
        {"ochre",
         "Ochre",
         {220, 124},
         16,
         {16, 20, 16, 20},
         PanelBackground::ochre,
         paper,
         fog,
         green,
         Color{0.227, 0.227, 0.227, 1},
         "FATHOM",
         {serif, 11, medium},
         5.6,
         {mono, 42, light, tabular},
         true,
         true,
         {mono, 10, regular, tabular}},
        {"editorial",
         "Editorial Light",
         {220, 124},
         16,
         {16, 20, 16, 20},
         PanelBackground::editorial,
         ink,
         Color{0.42, 0.42, 0.40, 1},
         green,
         Color{0.72, 0.72, 0.70, 1},
         "FATHOM",
         {serif, 11, medium},
         5.6,
         {mono, 42, light, tabular},
         true,
         true,
         {mono, 10, regular, tabular}},
        {"minimal",
         "Minimalista",
         {180, 70},
         14,
         {8, 16, 8, 16},
         PanelBackground::minimal,
         std::nullopt,
         std::nullopt,
         std::nullopt,
         std::nullopt,
         std::nullopt,
         {system, 9, regular},
         0,
         {systemRounded, 34, regular, tabular},
         false,
         false,
         {systemMonospaced, 9, regular}},
        {"hacker",
         "Hacker",
         {260, 110},
         4,
         {14, 18, 14, 18},
         PanelBackground::hacker,
         Color{0, 1, 0.255, 1},
         Color{0, 0.667, 0.165, 1},
         Color{0, 1, 0.255, 1},
         Color{0, 0.3, 0.08, 1},
         "[ TIDEWATCH ]",
         {systemMonospaced, 9, medium},
         2.0,
         {systemMonospaced, 32, semibold, tabular},
         true,
         true,
         {systemMonospaced, 10, regular, tabular}},
        {"liquid",
         "Liquid Crystal",
         {230, 132},
         24,
         {18, 22, 18, 22},
         PanelBackground::liquid,
         Color{1, 1, 1, 1},
         Color{1, 1, 1, 0.78},
         Color{1, 1, 1, 0.9},
         Color{1, 1, 1, 0.3},
         "TIDE · WATCH",
         {systemSerif, 9, medium},
         4.5,
         {systemRounded, 38, semibold, tabular},
         true,
         true,
         {systemMonospaced, 10, regular, tabular}},
    }};
    return table;
}
// clang-format on

TEST(ThemeRegistry, HoldsTheFiveThemesInTheOrderOfTheMenu) {
    const ThemeRegistry registry;
    ASSERT_EQ(registry.themes().size(), 5u);
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(registry.themes()[i].id, rows()[i].id);
        EXPECT_EQ(registry.themes()[i].displayName, rows()[i].displayName);
    }
}

TEST(ThemeRegistry, EveryValueOfThePanel) {
    const ThemeRegistry registry;
    for (std::size_t i = 0; i < 5; ++i) {
        const auto& theme = registry.themes()[i];
        const auto& row = rows()[i];
        SCOPED_TRACE(row.id);
        EXPECT_EQ(theme.size, row.size);
        EXPECT_EQ(theme.cornerRadius, row.cornerRadius);
        EXPECT_EQ(theme.padding, row.padding);
        EXPECT_EQ(theme.background, row.background);
        if (row.primaryText) {
            EXPECT_EQ(theme.primaryText, *row.primaryText);
        }
        if (row.secondaryText) {
            EXPECT_EQ(theme.secondaryText, *row.secondaryText);
        }
        if (row.accentActive) {
            EXPECT_EQ(theme.accentActive, *row.accentActive);
        }
        if (row.accentIdle) {
            EXPECT_EQ(theme.accentIdle, *row.accentIdle);
        }
        EXPECT_EQ(theme.label, row.label);
        EXPECT_EQ(theme.labelFont, row.labelFont);
        EXPECT_EQ(theme.labelTracking, row.labelTracking);
        EXPECT_EQ(theme.digitFont, row.digitFont);
        EXPECT_EQ(theme.showsStatusDot, row.showsStatusDot);
        EXPECT_EQ(theme.showsDailyTotal, row.showsDailyTotal);
        EXPECT_EQ(theme.dailyTotalFont, row.dailyTotalFont);
    }
}

TEST(ThemeRegistry, MinimalTakesTheDesktopsColoursOnDarkGround) {
    const ThemeRegistry registry;
    const auto& minimal = registry.theme("minimal");
    EXPECT_EQ(minimal.primaryText, systemColor(SystemColor::primary, Appearance::dark));
    EXPECT_EQ(minimal.secondaryText, systemColor(SystemColor::secondary, Appearance::dark));
    EXPECT_EQ(minimal.accentActive, systemColor(SystemColor::green, Appearance::dark));
    EXPECT_DOUBLE_EQ(minimal.accentIdle.alpha, 0.5);
    EXPECT_EQ(minimal.accentIdle.red, systemColor(SystemColor::gray, Appearance::dark).red);
}

TEST(ThemeRegistry, MinimalHasNoLabelNoStatusDotAndNoDailyTotal) {
    const ThemeRegistry registry;
    for (const auto& theme : registry.themes()) {
        SCOPED_TRACE(theme.id);
        const bool isMinimal = theme.id == "minimal";
        EXPECT_EQ(!theme.label.has_value(), isMinimal);
        EXPECT_EQ(!theme.showsStatusDot, isMinimal);
        EXPECT_EQ(!theme.showsDailyTotal, isMinimal);
    }
}

TEST(ThemeRegistry, FindsAThemeByItsExactId) {
    const ThemeRegistry registry;
    for (const auto& theme : registry.themes()) EXPECT_EQ(&registry.theme(theme.id), &theme);
}

TEST(ThemeRegistry, AnUnknownIdYieldsTheFirstTheme) {
    const ThemeRegistry registry;
    EXPECT_EQ(registry.theme("").id, "ochre");
    EXPECT_EQ(registry.theme("Hacker").id, "ochre");
    EXPECT_EQ(registry.theme("sepia").id, "ochre");
}

}  // namespace
}  // namespace tidewatch
