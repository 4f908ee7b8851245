#include "ui/style/contrast.h"

#include <gtest/gtest.h>

#include "ui/backgrounds/liquid_painter.h"
#include "ui/style/style.h"
#include "ui/ui_scene.h"

namespace tidewatch {
namespace {

TEST(Contrast, ReachesFromOneToTwentyOne) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 1e-6);
    EXPECT_NEAR(contrast(Qt::white, Qt::black), 21, 1e-6);
    EXPECT_NEAR(contrast(Qt::red, Qt::red), 1, 1e-6);
    EXPECT_NEAR(contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

TEST(Contrast, ATranslucentColourIsMixedWithItsGround) {
    EXPECT_EQ(blendedOver(QColor::fromRgbF(1, 1, 1, 0.5F), Qt::black).rgb(),
              QColor::fromRgbF(0.5F, 0.5F, 0.5F).rgb());
    EXPECT_EQ(blendedOver(Qt::blue, Qt::white), QColor(Qt::blue));
}

TEST(Contrast, WhatCanBeReadStaysAsItIs) {
    EXPECT_EQ(legibleOn(Qt::black, Qt::green), QColor(Qt::green));
}

TEST(Contrast, WhatCannotBeReadIsBroughtJustFarEnoughAwayFromItsGround) {
    const QColor paper(0xF4, 0xF1, 0xEA);
    const QColor paleGreen(0x7B, 0xD8, 0x8F);
    const auto legible = legibleOn(paper, paleGreen);
    EXPECT_GE(contrast(legible, paper), minContrast);
    EXPECT_LT(contrast(legible, paper), minContrast + 1);
    EXPECT_NEAR(legible.hueF(), paleGreen.hueF(), 0.02);
}

TEST(Contrast, AGreyInTheMiddleGetsWhatHelps) {
    const QColor grey(0x70, 0x70, 0x70);
    EXPECT_GE(contrast(legibleOn(grey, grey), grey), minContrast);
}

TEST(Contrast, EveryTierIsLegibleOnTheCardsOfEveryTheme) {
    const ThemeRegistry registry;
    for (const auto& theme : registry.themes()) {
        SCOPED_TRACE(theme.id);
        const Palette palette(theme.dashboard);
        // What lies behind the cards may be anything between the plain ground and the brightest.
        for (const auto& card :
             {palette.textGround, blendedOver(palette.card, blendedOver(palette.ground, palette.bg))}) {
            for (const auto& color :
                 {palette.tierProductive, palette.tierNeutral, palette.tierDistracting, palette.amber}) {
                EXPECT_GE(contrast(legibleOn(palette.textGround, color), card), minContrast);
            }
            for (const auto& color : {palette.primaryText, palette.strongMute}) {
                EXPECT_GE(contrast(blendedOver(color, card), card), minContrast);
            }
        }
        EXPECT_GE(contrast(palette.onFill, palette.tierProductive), minContrast);
    }
}

/// The brightest that the dashboard's liquid ever is, at its intensity over the dashboard's ground.
QColor brightestLiquid(const Palette& palette) {
    const LiquidPainter liquid({{150, 110}, {1360, 1000}, liquidDecorationIntensity, Ground::translucent});
    QColor brightest = Qt::black;
    // It repeats after this many seconds.
    for (int second = 0; second < 126; ++second) {
        const auto picture = liquid.paint(liquidAngles(second));
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const auto seen = blendedOver(picture.pixelColor(x, y), palette.bg);
                if (contrast(seen, Qt::black) > contrast(brightest, Qt::black)) brightest = seen;
            }
        }
    }
    return brightest;
}

TEST(Contrast, EveryWordIsLegibleWhereTheLiquidIsBrightest) {
    const Palette palette(ThemeRegistry().theme("liquid").dashboard);
    const auto brightest = brightestLiquid(palette);
    EXPECT_LT(contrast(palette.primaryText, brightest), minContrast)
        << "the cards need no ground of their own";
    const auto between = blendedOver(palette.ground, brightest);
    const auto card = blendedOver(palette.card, between);
    const auto chip = blendedOver(palette.cardSubtle, between);
    for (const auto& ground : {between, card}) {
        for (const auto& color :
             {palette.primaryText, palette.strongMute, palette.secondaryText, palette.mute}) {
            EXPECT_GE(contrast(blendedOver(color, ground), ground), minContrast);
        }
    }
    for (const auto& color : {palette.primaryText, palette.strongMute}) {
        EXPECT_GE(contrast(blendedOver(color, chip), chip), minContrast);
    }
    EXPECT_LE(contrast(card, Qt::black), contrast(palette.textGround, Qt::black));
}

TEST(Contrast, AColourThatAViewMakesLegibleFollowsTheTheme) {
    UiScene scene;
    scene.show(
        "Item { property color green: Style.legibleOn(Style.palette.textGround, "
        "Style.palette.tierProductive) }");
    auto& style = *Style::of(scene.engine_);
    for (const auto* id : {"editorial", "ochre", "editorial"}) {
        scene.theme_.switchTo(id);
        const auto& palette = style.palette();
        EXPECT_EQ(scene.seen("green").value<QColor>(), legibleOn(palette.textGround, palette.tierProductive))
            << id;
    }
}

}  // namespace
}  // namespace tidewatch
