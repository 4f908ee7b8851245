#include "shell/statistics_frame.h"

#include <gtest/gtest.h>

#include <utility>

#include "platform/fake/fake_screens.h"

namespace tidewatch {
namespace {

using platform::Rectangle;
using platform::Screen;

/// Screens of which none need be the main one.
class ScreensWithoutMain final : public platform::Screens {
public:
    explicit ScreensWithoutMain(std::vector<Screen> screens) : screens_(std::move(screens)) {}
    [[nodiscard]] std::vector<Screen> all() const override { return screens_; }
    [[nodiscard]] std::optional<Screen> main() const override { return std::nullopt; }
    Connection onChanged(std::function<void()>) override { return {}; }

private:
    std::vector<Screen> screens_;
};

TEST(StatisticsFrame, FillsALaptopsScreenButForItsMargin) {
    EXPECT_EQ(statisticsFrame(Rectangle{0, 25, 1512, 950}), (Rectangle{76, 39, 1360, 922}));
}

TEST(StatisticsFrame, GrowsNoLargerThanItsLargestSize) {
    EXPECT_EQ(statisticsFrame(Rectangle{0, 0, 2560, 1400}), (Rectangle{600, 200, 1360, 1000}));
}

TEST(StatisticsFrame, FitsTheWidthOfASmallScreenAndKeepsItsLeastHeight) {
    EXPECT_EQ(statisticsFrame(Rectangle{0, 0, 1024, 640}), (Rectangle{14, 10, 996, 620}));
}

TEST(StatisticsFrame, IsLargerThanAScreenBelowItsLeastSize) {
    EXPECT_EQ(statisticsFrame(Rectangle{0, 0, 800, 600}), (Rectangle{-50, -10, 900, 620}));
}

TEST(StatisticsFrame, TheLeastSizeIsReachedExactly) {
    EXPECT_EQ(statisticsFrame(Rectangle{0, 0, 928, 648}), (Rectangle{14, 14, 900, 620}));
}

TEST(StatisticsFrame, StandsWhereTheVisibleFrameStands) {
    EXPECT_EQ(statisticsFrame(Rectangle{1920, 300, 1280, 800}), (Rectangle{1934, 314, 1252, 772}));
}

TEST(StatisticsFrame, TakesTheMainScreensVisibleFrame) {
    platform::FakeScreens screens;
    screens.set({{{0, 0, 1280, 800}, {0, 24, 1280, 776}}, {{1280, 0, 2560, 1440}, {1280, 0, 2560, 1440}}});
    EXPECT_EQ(statisticsFrame(screens), (Rectangle{14, 38, 1252, 748}));
}

TEST(StatisticsFrame, WithoutAMainScreenTakesTheFirst) {
    const ScreensWithoutMain screens(std::vector{Screen{{0, 0, 1280, 800}, {0, 0, 1280, 800}}});
    EXPECT_EQ(statisticsFrame(screens), (Rectangle{14, 14, 1252, 772}));
}

TEST(StatisticsFrame, WithoutAnyScreenImaginesOne) {
    platform::FakeScreens screens;
    screens.set({});
    EXPECT_EQ(statisticsFrame(screens), (Rectangle{40, 14, 1360, 872}));
}

}  // namespace
}  // namespace tidewatch
