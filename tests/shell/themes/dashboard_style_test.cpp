#include "shell/themes/dashboard_style.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <ostream>
#include <string>
#include <vector>

#include "shell/themes/theme_registry.h"

namespace tidewatch {

void PrintTo(const Color& color, std::ostream* out) {
    *out << "(" << color.red << ", " << color.green << ", " << color.blue << ") at " << color.alpha;
}

namespace {

constexpr double ink = 10 / 255.0;

/// A row of the expected values: a field and its value in each theme, in menu order.
struct FieldRow {
    const char* name;
    Color DashboardStyle::*field;
    std::array<Color, 5> expected;
};

const Color paper{244 / 255.0, 241 / 255.0, 234 / 255.0, 1};
const Color fog{138 / 255.0, 138 / 255.0, 133 / 255.0, 1};

const std::vector<FieldRow>& fieldRows() {
    static const std::vector<FieldRow> rows = {
        {"bg",
         &DashboardStyle::bg,
         {{{ink, ink, ink, 1}, paper, {0.13, 0.13, 0.13, 1}, {0, 0, 0, 1}, {0.04, 0.04, 0.04, 1}}}},
        {"card",
         &DashboardStyle::card,
         {{{0.07, 0.07, 0.07, 1},
           {0.964, 0.954, 0.927, 1},
           {0.18, 0.18, 0.18, 1},
           {0, 0.06, 0.025, 0.85},
           {1, 1, 1, 0.04}}}},
        {"cardSubtle",
         &DashboardStyle::cardSubtle,
         {{{0.10, 0.10, 0.10, 1},
           {0.946, 0.935, 0.905, 1},
           {0.22, 0.22, 0.22, 1},
           {0, 0.1, 0.04, 0.85},
           {1, 1, 1, 0.07}}}},
        {"stroke",
         &DashboardStyle::stroke,
         {{{1, 1, 1, 0.08}, {ink, ink, ink, 0.1}, {1, 1, 1, 0.1}, {0, 1, 0.255, 0.18}, {1, 1, 1, 0.14}}}},
        {"strongMute",
         &DashboardStyle::strongMute,
         {{{0.55, 0.55, 0.55, 1},
           {0.32, 0.32, 0.30, 1},
           {1, 1, 1, 0.55},
           {0, 0.85, 0.21, 1},
           {1, 1, 1, 0.72}}}},
        {"mute",
         &DashboardStyle::mute,
         {{fog, {0.48, 0.48, 0.46, 1}, {1, 1, 1, 0.5}, {0, 0.667, 0.165, 1}, {1, 1, 1, 0.58}}}},
        {"muteSoft",
         &DashboardStyle::muteSoft,
         {{{1, 1, 1, 0.35}, {0.62, 0.62, 0.60, 1}, {1, 1, 1, 0.32}, {0, 0.4, 0.1, 1}, {1, 1, 1, 0.3}}}},
        {"primaryText",
         &DashboardStyle::primaryText,
         {{paper, {ink, ink, ink, 1}, {1, 1, 1, 1}, {0, 1, 0.255, 1}, {1, 1, 1, 1}}}},
        {"secondaryText",
         &DashboardStyle::secondaryText,
         {{fog, {0.42, 0.42, 0.40, 1}, {1, 1, 1, 0.65}, {0, 0.667, 0.165, 1}, {1, 1, 1, 0.78}}}},
        {"nsBackground",
         &DashboardStyle::nsBackground,
         {{{0.039, 0.039, 0.039, 1},
           {0.957, 0.945, 0.918, 1},
           {0.13, 0.13, 0.13, 1},
           {0, 0, 0, 1},
           {0.04, 0.04, 0.04, 1}}}},
    };
    return rows;
}

TEST(DashboardStyle, EveryColourOfEveryTheme) {
    const ThemeRegistry registry;
    for (const auto& row : fieldRows()) {
        for (std::size_t i = 0; i < 5; ++i) {
            SCOPED_TRACE(std::string(row.name) + " of " + registry.themes()[i].id);
            EXPECT_EQ(registry.themes()[i].dashboard.*row.field, row.expected[i]);
        }
    }
}

TEST(DashboardStyle, DecorationsAndAppearances) {
    const ThemeRegistry registry;
    const std::array decorations = {Decoration::none, Decoration::paperGrain, Decoration::none,
                                    Decoration::scanlines, Decoration::liquid};
    const std::array appearances = {Appearance::dark, Appearance::light, Appearance::dark, Appearance::dark,
                                    Appearance::dark};
    for (std::size_t i = 0; i < 5; ++i) {
        SCOPED_TRACE(registry.themes()[i].id);
        EXPECT_EQ(registry.themes()[i].dashboard.decoration, decorations[i]);
        EXPECT_EQ(registry.themes()[i].dashboard.nsAppearance, appearances[i]);
    }
    EXPECT_DOUBLE_EQ(liquidDecorationIntensity, 0.45);
}

struct Triple {
    double red, green, blue;
};

TEST(DashboardStyle, GamePiecesInTheOrderOfTheGame) {
    const Triple expected[5][7] = {
        {{0.48, 0.85, 0.56},
         {0.42, 0.62, 0.83},
         {0.91, 0.77, 0.35},
         {0.82, 0.34, 0.34},
         {0.73, 0.56, 0.85},
         {0.44, 0.79, 0.77},
         {0.93, 0.91, 0.86}},
        {{0.33, 0.66, 0.42},
         {0.32, 0.50, 0.72},
         {0.78, 0.55, 0.18},
         {0.70, 0.27, 0.27},
         {0.55, 0.36, 0.66},
         {0.20, 0.55, 0.55},
         {0.18, 0.18, 0.18}},
        {{0.88, 0.88, 0.88},
         {0.68, 0.68, 0.68},
         {0.62, 0.71, 0.80},
         {0.72, 0.66, 0.74},
         {0.66, 0.75, 0.69},
         {0.82, 0.75, 0.62},
         {0.52, 0.52, 0.52}},
        {{0, 1, 0.255},
         {0.16, 0.84, 0.32},
         {0.42, 1, 0.54},
         {0, 0.67, 0.16},
         {0.71, 1, 0.77},
         {0, 0.85, 0.21},
         {0.34, 0.93, 0.45}},
        {{1, 0.42, 0.62},
         {0.62, 0.42, 1},
         {0.42, 0.62, 1},
         {0.42, 1, 0.84},
         {1, 0.90, 0.42},
         {1, 0.62, 0.42},
         {1, 0.42, 0.82}},
    };
    const ThemeRegistry registry;
    for (std::size_t theme = 0; theme < 5; ++theme) {
        for (std::size_t piece = 0; piece < gamePieceCount; ++piece) {
            SCOPED_TRACE(registry.themes()[theme].id + ", piece " + std::to_string(piece + 1));
            const auto& triple = expected[theme][piece];
            EXPECT_EQ(registry.themes()[theme].dashboard.gamePieces[piece],
                      (Color{triple.red, triple.green, triple.blue, 1}));
        }
    }
}

bool isGreen(const Color& color) {
    return color.green > color.red && color.green > color.blue;
}

TEST(DashboardStyle, HackerIsTheOnlyThemeWhoseGamePiecesAreAllGreen) {
    const ThemeRegistry registry;
    for (const auto& theme : registry.themes()) {
        SCOPED_TRACE(theme.id);
        EXPECT_EQ(std::ranges::all_of(theme.dashboard.gamePieces, isGreen), theme.id == "hacker");
    }
}

TEST(DashboardStyle, TierColoursAreTheSameInAllThemes) {
    EXPECT_EQ(DashboardStyle::tierProductive, (Color{0.482, 0.847, 0.561, 1}));
    EXPECT_EQ(DashboardStyle::tierNeutral, (Color{0.42, 0.62, 0.831, 1}));
    EXPECT_EQ(DashboardStyle::tierDistracting, (Color{0.819, 0.341, 0.341, 1}));
    EXPECT_EQ(DashboardStyle::amber, (Color{0.91, 0.769, 0.345, 1}));
}

}  // namespace
}  // namespace tidewatch
