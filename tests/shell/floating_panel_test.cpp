#include "shell/floating_panel.h"

#include <gtest/gtest.h>

#include "app/program_world.h"
#include "platform/fake/fake_screens.h"
#include "platform/fake/memory_preferences.h"

namespace tidewatch {
namespace {

using platform::Point;

/// The clock's window on fake surfaces, positioned by the settings.
class FloatingPanelTest : public testing::Test {
protected:
    FloatingPanel& panel() {
        if (!panel_) panel_ = std::make_unique<FloatingPanel>(window_, screens_, owner());
        return *panel_;
    }

    FloatingPanel::Owner owner() {
        return {.place = {.load = [this] { return settings_.windowOrigin(); },
                          .save = [this](Point origin) { settings_.setWindowOrigin(origin); }},
                .defaultPlace = [this](PanelSize size) { return topRightCorner(screens_, size, 24); },
                .clicked = [this] { ++clicks_; },
                .menuRequested = nullptr};
    }

    void mouseDown(Point position) { window_.gestures().mouseDown(position); }
    void mouseDragged(Point position) { window_.gestures().mouseDragged(position); }
    void mouseUp(Point position) { window_.gestures().mouseUp(position); }

    platform::MemoryPreferences preferences_;
    Settings settings_{preferences_};
    platform::FakeScreens screens_;
    int clicks_ = 0;
    ScreenLog log_;
    FakeFloatingWindow window_{{220, 124}, log_};
    std::unique_ptr<FloatingPanel> panel_;
};

TEST_F(FloatingPanelTest, WithoutAStoredOriginItStandsInTheTopRightCornerOfTheMainScreen) {
    panel();
    EXPECT_EQ(window_.origin(), (Point{1920 - 220 - 24, 30 + 24}));
}

TEST_F(FloatingPanelTest, AStoredOriginOnAScreenIsRestored) {
    screens_.set({{{0, 0, 1920, 1080}, {0, 0, 1920, 1080}}, {{1920, 0, 1280, 1024}, {1920, 0, 1280, 1024}}});
    settings_.setWindowOrigin(Point{2000, 500});
    panel();
    EXPECT_EQ(window_.origin(), (Point{2000, 500}));
}

TEST_F(FloatingPanelTest, AStoredOriginOutsideAllScreensPlacesItInTheCornerAndTheNextMouseUpOverwritesIt) {
    settings_.setWindowOrigin(Point{3000, 500});
    panel();
    EXPECT_EQ(window_.origin(), (Point{1676, 54}));
    EXPECT_EQ(settings_.windowOrigin(), (Point{3000, 500}));
    mouseDown({1700, 60});
    mouseUp({1700, 60});
    EXPECT_EQ(settings_.windowOrigin(), (Point{1676, 54}));
}

TEST_F(FloatingPanelTest, WithoutAScreenItStaysWhereItIs) {
    screens_.set({});
    panel();
    EXPECT_EQ(window_.origin(), (Point{7, 7}));
}

TEST_F(FloatingPanelTest, AScreenThatIsDetachedSendsItToTheCornerAndItsReturnBack) {
    const platform::Screen left{{0, 0, 1920, 1080}, {0, 0, 1920, 1080}};
    const platform::Screen right{{1920, 0, 1280, 1024}, {1920, 0, 1280, 1024}};
    screens_.set({left, right});
    settings_.setWindowOrigin(Point{2000, 500});
    panel();
    screens_.set({left});
    EXPECT_EQ(window_.origin(), (Point{1676, 24}));
    EXPECT_EQ(settings_.windowOrigin(), (Point{2000, 500})) << "nobody has put it elsewhere";
    screens_.set({left, right});
    EXPECT_EQ(window_.origin(), (Point{2000, 500}));
}

TEST_F(FloatingPanelTest, AScreenThatShrinksKeepsItInReach) {
    settings_.setWindowOrigin(Point{1200, 650});
    panel();
    screens_.set({{{0, 0, 1280, 720}, {0, 0, 1280, 720}}});
    EXPECT_EQ(window_.origin(), (Point{1280 - 220, 720 - 124}));
    screens_.set({{{0, 0, 1920, 1080}, {0, 0, 1920, 1080}}});
    EXPECT_EQ(window_.origin(), (Point{1200, 650}));
}

TEST_F(FloatingPanelTest, OneThatReachesOverTheEdgeStaysIfItsMiddleIsSeen) {
    settings_.setWindowOrigin(Point{1169, 650});
    panel();
    screens_.set({{{0, 0, 1280, 713}, {0, 0, 1280, 713}}});
    EXPECT_EQ(window_.origin(), (Point{1169, 650}));
    screens_.set({{{0, 0, 1279, 713}, {0, 0, 1279, 713}}});
    EXPECT_EQ(window_.origin(), (Point{1279 - 220, 713 - 124}));
    screens_.set({{{0, 0, 1279, 713}, {0, 0, 1279, 713}}, {{1279, 0, 1279, 713}, {1279, 0, 1279, 713}}});
    EXPECT_EQ(window_.origin(), (Point{1169, 650})) << "the other screen shows its middle";
}

TEST_F(FloatingPanelTest, OneThatIsLargerThanItsScreenShowsItsTopLeftCorner) {
    settings_.setWindowOrigin(Point{90, 60});
    panel();
    screens_.set({{{0, 0, 160, 90}, {0, 0, 160, 90}}});
    EXPECT_EQ(window_.origin(), (Point{0, 0}));
}

TEST_F(FloatingPanelTest, WithoutAStoredOriginItFollowsTheCorner) {
    panel();
    screens_.set({{{0, 0, 1280, 720}, {0, 40, 1280, 680}}});
    EXPECT_EQ(window_.origin(), (Point{1280 - 220 - 24, 40 + 24}));
    EXPECT_EQ(settings_.windowOrigin(), std::nullopt);
}

TEST_F(FloatingPanelTest, ItsSizeIsFittedToTheScreensBeforeItsPlace) {
    panel();
    log_.clear();
    screens_.set({{{0, 0, 1280, 720}, {0, 40, 1280, 680}}});
    EXPECT_EQ(log_, ScreenLog{"fit"});
}

TEST_F(FloatingPanelTest, WithoutAnyScreenItWaitsForOne) {
    settings_.setWindowOrigin(Point{1200, 650});
    panel();
    screens_.set({});
    EXPECT_EQ(window_.origin(), (Point{1200, 650}));
    screens_.set({{{0, 0, 1920, 1080}, {0, 0, 1920, 1080}}});
    EXPECT_EQ(window_.origin(), (Point{1200, 650}));
}

TEST_F(FloatingPanelTest, ATravelOf4Point9IsAClick) {
    panel();
    mouseDown({100, 100});
    mouseDragged({104.9, 100});
    mouseUp({104.9, 100});
    EXPECT_EQ(clicks_, 1);
    EXPECT_EQ(window_.origin(), (Point{1676, 54}));
}

TEST_F(FloatingPanelTest, ATravelOf5IsADrag) {
    panel();
    mouseDown({100, 100});
    mouseDragged({100, 105});
    mouseUp({100, 105});
    EXPECT_EQ(clicks_, 0);
    EXPECT_EQ(window_.origin(), (Point{1676, 59}));
}

TEST_F(FloatingPanelTest, AClickStoresTheOriginToo) {
    panel();
    mouseDown({100, 100});
    mouseUp({100, 100});
    EXPECT_EQ(settings_.windowOrigin(), (Point{1676, 54}));
}

TEST_F(FloatingPanelTest, ADragMovesTheWindowWithTheMouseAndStoresThePlace) {
    panel();
    mouseDown({100, 100});
    mouseDragged({60, 130});
    mouseDragged({20, 160});
    mouseUp({20, 160});
    EXPECT_EQ(window_.origin(), (Point{1676 - 80, 54 + 60}));
    EXPECT_EQ(settings_.windowOrigin(), window_.origin());
}

TEST_F(FloatingPanelTest, GrowingKeepsTheTopLeftCornerAndStoresIt) {
    panel();
    mouseDown({100, 100});
    mouseDragged({0, 200});
    mouseUp({0, 200});
    const auto before = window_.origin();
    panel().resize({330, 186});
    EXPECT_EQ(window_.panelSize(), (PanelSize{330, 186}));
    EXPECT_EQ(window_.origin(), before);
    EXPECT_EQ(settings_.windowOrigin(), before);
}

}  // namespace
}  // namespace tidewatch
