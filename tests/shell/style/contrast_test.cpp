#include "shell/style/contrast.h"

#include <gtest/gtest.h>

#include "shell/style/style.h"
#include "shell/style/style_scene.h"

namespace tidewatch {
namespace {

TEST(Contrast, ReachesFromOneToTwentyOne) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 1e-6);
    EXPECT_NEAR(contrast(Qt::white, Qt::black), 21, 1e-6);
    EXPECT_NEAR(contrast(Qt::red, Qt::red), 1, 1e-6);
    EXPECT_NEAR(contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

TEST(Contrast, ATranslucentColourIsMixedWithItsGround) {
    EXPECT_EQ(laidOver(QColor::fromRgbF(1, 1, 1, 0.5F), Qt::black).rgb(),
              QColor::fromRgbF(0.5F, 0.5F, 0.5F).rgb());
    EXPECT_EQ(laidOver(Qt::blue, Qt::white), QColor(Qt::blue));
}

TEST(Contrast, WhatCanBeReadStaysAsItIs) {
    EXPECT_EQ(legibleOn(Qt::black, Qt::green), QColor(Qt::green));
}

TEST(Contrast, WhatCannotBeReadIsBroughtJustFarEnoughAwayFromItsGround) {
    const QColor paper(0xF4, 0xF1, 0xEA);
    const QColor paleGreen(0x7B, 0xD8, 0x8F);
    const auto legible = legibleOn(paper, paleGreen);
    EXPECT_GE(contrast(legible, paper), leastContrast);
    EXPECT_LT(contrast(legible, paper), leastContrast + 1);
    EXPECT_NEAR(legible.hueF(), paleGreen.hueF(), 0.02);
}

TEST(Contrast, AGreyInTheMiddleGetsWhatHelps) {
    const QColor grey(0x70, 0x70, 0x70);
    EXPECT_GE(contrast(legibleOn(grey, grey), grey), leastContrast);
}

TEST(Contrast, EveryTierIsLegibleOnTheCardsOfEveryTheme) {
    StyleScene scene;
    scene.show("Item {}");
    auto& style = *Style::of(scene.engine_);
    for (const auto& theme : scene.themes_.themes()) {
        SCOPED_TRACE(theme.id);
        scene.theme_.switchTo(theme.id);
        const auto card = laidOver(style.palette().card, style.palette().bg);
        for (const auto& color : {style.palette().tierProductive, style.palette().tierNeutral,
                                  style.palette().tierDistracting, style.palette().amber}) {
            EXPECT_GE(contrast(style.legible(color), card), leastContrast);
        }
        for (const auto& color : {style.palette().primaryText, style.palette().strongMute}) {
            EXPECT_GE(contrast(laidOver(color, card), card), leastContrast);
        }
        EXPECT_GE(contrast(style.palette().onFill, style.palette().tierProductive), leastContrast);
    }
}

}  // namespace
}  // namespace tidewatch
