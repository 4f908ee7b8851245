#include "shell/themes/builtin_themes.h"

namespace tidewatch {
namespace {

constexpr Color white = Color::whiteAt(1);
constexpr Color black = Color::blackAt(1);
constexpr Color phosphor{0, 1, 0.255};
constexpr Color phosphorDim{0, 0.667, 0.165};

constexpr FontSpec withEqualDigits(FontSpec font) {
    font.digits = Digits::monospaced;
    return font;
}

constexpr FontSpec equalDigits(FontRole role, double size, FontWeight weight) {
    return {role, size, weight, Digits::monospaced};
}

}  // namespace

Theme ochreTheme() {
    return {
        .id = "ochre",
        .displayName = "Ochre",
        .size = {220, 124},
        .cornerRadius = 16,
        .padding = {16, 20, 16, 20},
        .background = PanelBackground::ochre,
        .primaryText = fathom::paper,
        .secondaryText = fathom::fog,
        .accentActive = fathom::green,
        .accentIdle = {0.227, 0.227, 0.227},
        .label = std::string(fathom::wordmark),
        .labelFont = fathom::serif(11, FontWeight::medium),
        .labelTracking = 5.6,
        .digitFont = withEqualDigits(fathom::mono(42, FontWeight::light)),
        .showsStatusDot = true,
        .showsDailyTotal = true,
        .dailyTotalFont = withEqualDigits(fathom::mono(10, FontWeight::regular)),
        .dashboard =
            {
                .bg = fathom::ink,
                .card = Color::whiteLevel(0.07),
                .cardSubtle = Color::whiteLevel(0.10),
                .stroke = Color::whiteAt(0.08),
                .strongMute = Color::whiteLevel(0.55),
                .mute = fathom::fog,
                .muteSoft = Color::whiteAt(0.35),
                .primaryText = fathom::paper,
                .secondaryText = fathom::fog,
                .gamePieces = {{{0.48, 0.85, 0.56},
                                {0.42, 0.62, 0.83},
                                {0.91, 0.77, 0.35},
                                {0.82, 0.34, 0.34},
                                {0.73, 0.56, 0.85},
                                {0.44, 0.79, 0.77},
                                {0.93, 0.91, 0.86}}},
                .decoration = Decoration::none,
                .nsAppearance = Appearance::dark,
                .nsBackground = fathom::inkNS,
            },
    };
}

Theme editorialTheme() {
    constexpr Color warmGray{0.42, 0.42, 0.40};
    return {
        .id = "editorial",
        .displayName = "Editorial Light",
        .size = {220, 124},
        .cornerRadius = 16,
        .padding = {16, 20, 16, 20},
        .background = PanelBackground::editorial,
        .primaryText = fathom::ink,
        .secondaryText = warmGray,
        .accentActive = fathom::green,
        .accentIdle = {0.72, 0.72, 0.70},
        .label = std::string(fathom::wordmark),
        .labelFont = fathom::serif(11, FontWeight::medium),
        .labelTracking = 5.6,
        .digitFont = withEqualDigits(fathom::mono(42, FontWeight::light)),
        .showsStatusDot = true,
        .showsDailyTotal = true,
        .dailyTotalFont = withEqualDigits(fathom::mono(10, FontWeight::regular)),
        .dashboard =
            {
                .bg = fathom::paper,
                .card = {0.964, 0.954, 0.927},
                .cardSubtle = {0.946, 0.935, 0.905},
                .stroke = fathom::ink.at(0.1),
                .strongMute = {0.32, 0.32, 0.30},
                .mute = {0.48, 0.48, 0.46},
                .muteSoft = {0.62, 0.62, 0.60},
                .primaryText = fathom::ink,
                .secondaryText = warmGray,
                .gamePieces = {{{0.33, 0.66, 0.42},
                                {0.32, 0.50, 0.72},
                                {0.78, 0.55, 0.18},
                                {0.70, 0.27, 0.27},
                                {0.55, 0.36, 0.66},
                                {0.20, 0.55, 0.55},
                                {0.18, 0.18, 0.18}}},
                .decoration = Decoration::paperGrain,
                .nsAppearance = Appearance::light,
                .nsBackground = fathom::paperNS,
            },
    };
}

Theme minimalTheme() {
    // The panel is dark on every desktop, so it uses the system colours for dark backgrounds.
    constexpr auto ground = Appearance::dark;
    return {
        .id = "minimal",
        .displayName = "Minimalista",
        .size = {180, 70},
        .cornerRadius = 14,
        .padding = {8, 16, 8, 16},
        .background = PanelBackground::minimal,
        .primaryText = systemColor(SystemColor::primary, ground),
        .secondaryText = systemColor(SystemColor::secondary, ground),
        .accentActive = systemColor(SystemColor::green, ground),
        .accentIdle = systemColor(SystemColor::gray, ground).at(0.5),
        .label = std::nullopt,
        .labelFont = {FontRole::system, 9, FontWeight::regular},
        .labelTracking = 0,
        .digitFont = equalDigits(FontRole::systemRounded, 34, FontWeight::regular),
        .showsStatusDot = false,
        .showsDailyTotal = false,
        .dailyTotalFont = {FontRole::systemMonospaced, 9, FontWeight::regular},
        .dashboard =
            {
                .bg = Color::whiteLevel(0.13),
                .card = Color::whiteLevel(0.18),
                .cardSubtle = Color::whiteLevel(0.22),
                .stroke = Color::whiteAt(0.1),
                .strongMute = Color::whiteAt(0.55),
                .mute = Color::whiteAt(0.5),
                .muteSoft = Color::whiteAt(0.32),
                .primaryText = white,
                .secondaryText = Color::whiteAt(0.65),
                .gamePieces = {{Color::whiteLevel(0.88),
                                Color::whiteLevel(0.68),
                                {0.62, 0.71, 0.80},
                                {0.72, 0.66, 0.74},
                                {0.66, 0.75, 0.69},
                                {0.82, 0.75, 0.62},
                                Color::whiteLevel(0.52)}},
                .decoration = Decoration::none,
                .nsAppearance = Appearance::dark,
                .nsBackground = Color::whiteLevel(0.13),
            },
    };
}

Theme hackerTheme() {
    return {
        .id = "hacker",
        .displayName = "Hacker",
        .size = {260, 110},
        .cornerRadius = 4,
        .padding = {14, 18, 14, 18},
        .background = PanelBackground::hacker,
        .primaryText = phosphor,
        .secondaryText = phosphorDim,
        .accentActive = phosphor,
        .accentIdle = {0, 0.3, 0.08},
        .label = "[ TIDEWATCH ]",
        .labelFont = {FontRole::systemMonospaced, 9, FontWeight::medium},
        .labelTracking = 2.0,
        .digitFont = equalDigits(FontRole::systemMonospaced, 32, FontWeight::semibold),
        .showsStatusDot = true,
        .showsDailyTotal = true,
        .dailyTotalFont = equalDigits(FontRole::systemMonospaced, 10, FontWeight::regular),
        .dashboard =
            {
                .bg = black,
                .card = Color{0, 0.06, 0.025}.at(0.85),
                .cardSubtle = Color{0, 0.1, 0.04}.at(0.85),
                .stroke = phosphor.at(0.18),
                .strongMute = {0, 0.85, 0.21},
                .mute = phosphorDim,
                .muteSoft = {0, 0.4, 0.1},
                .primaryText = phosphor,
                .secondaryText = phosphorDim,
                .gamePieces = {{{0, 1, 0.255},
                                {0.16, 0.84, 0.32},
                                {0.42, 1, 0.54},
                                {0, 0.67, 0.16},
                                {0.71, 1, 0.77},
                                {0, 0.85, 0.21},
                                {0.34, 0.93, 0.45}}},
                .decoration = Decoration::scanlines,
                .nsAppearance = Appearance::dark,
                .nsBackground = black,
            },
    };
}

Theme liquidCrystalTheme() {
    return {
        .id = "liquid",
        .displayName = "Liquid Crystal",
        .size = {230, 132},
        .cornerRadius = 24,
        .padding = {18, 22, 18, 22},
        .background = PanelBackground::liquid,
        .primaryText = white,
        .secondaryText = Color::whiteAt(0.78),
        .accentActive = Color::whiteAt(0.9),
        .accentIdle = Color::whiteAt(0.3),
        .label = "TIDE · WATCH",
        .labelFont = {FontRole::systemSerif, 9, FontWeight::medium},
        .labelTracking = 4.5,
        .digitFont = equalDigits(FontRole::systemRounded, 38, FontWeight::semibold),
        .showsStatusDot = true,
        .showsDailyTotal = true,
        .dailyTotalFont = equalDigits(FontRole::systemMonospaced, 10, FontWeight::regular),
        .dashboard =
            {
                .bg = Color::whiteLevel(0.04),
                .card = Color::whiteAt(0.04),
                .cardSubtle = Color::whiteAt(0.07),
                .stroke = Color::whiteAt(0.14),
                .strongMute = Color::whiteAt(0.72),
                .mute = Color::whiteAt(0.58),
                .muteSoft = Color::whiteAt(0.3),
                .primaryText = white,
                .secondaryText = Color::whiteAt(0.78),
                .gamePieces = {{{1, 0.42, 0.62},
                                {0.62, 0.42, 1},
                                {0.42, 0.62, 1},
                                {0.42, 1, 0.84},
                                {1, 0.90, 0.42},
                                {1, 0.62, 0.42},
                                {1, 0.42, 0.82}}},
                .decoration = Decoration::liquid,
                .nsAppearance = Appearance::dark,
                .nsBackground = Color::whiteLevel(0.04),
            },
    };
}

}  // namespace tidewatch
