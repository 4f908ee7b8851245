#include "shell/floating_panel.h"

#include <gtest/gtest.h>

#include "app/program_world.h"
#include "platform/fake/fake_screens.h"
#include "platform/fake/memory_preferences.h"

namespace tidewatch {
namespace {

using platform::Point;

class FloatingPanelTest : public testing::Test {
protected:
    FloatingPanel& panel() {
        if (!panel_) panel_ = std::make_unique<FloatingPanel>(window_, settings_, screens_, broadcaster_);
        return *panel_;
    }

    platform::MemoryPreferences preferences_;
    Settings settings_{preferences_};
    platform::FakeScreens screens_;
    Broadcaster broadcaster_;
    int clicks_ = 0;
    Connection counting_ = broadcaster_.observe<FloatingPanelClicked>([this](const auto&) { ++clicks_; });
    ScreenLog log_;
    FakePanelWindow window_{{220, 124}, log_};
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
    panel().mouseDown({1700, 60});
    panel().mouseUp({1700, 60});
    EXPECT_EQ(settings_.windowOrigin(), (Point{1676, 54}));
}

TEST_F(FloatingPanelTest, WithoutAScreenItStaysWhereItIs) {
    screens_.set({});
    panel();
    EXPECT_EQ(window_.origin(), (Point{7, 7}));
}

TEST_F(FloatingPanelTest, ATravelOf4Point9IsAClick) {
    panel().mouseDown({100, 100});
    panel().mouseDragged({104.9, 100});
    panel().mouseUp({104.9, 100});
    EXPECT_EQ(clicks_, 1);
    EXPECT_EQ(window_.origin(), (Point{1676, 54}));
}

TEST_F(FloatingPanelTest, ATravelOf5IsADrag) {
    panel().mouseDown({100, 100});
    panel().mouseDragged({100, 105});
    panel().mouseUp({100, 105});
    EXPECT_EQ(clicks_, 0);
    EXPECT_EQ(window_.origin(), (Point{1676, 59}));
}

TEST_F(FloatingPanelTest, AClickStoresTheOriginToo) {
    panel().mouseDown({100, 100});
    panel().mouseUp({100, 100});
    EXPECT_EQ(settings_.windowOrigin(), (Point{1676, 54}));
}

TEST_F(FloatingPanelTest, ADragMovesTheWindowWithTheMouseAndStoresThePlace) {
    panel().mouseDown({100, 100});
    panel().mouseDragged({60, 130});
    panel().mouseDragged({20, 160});
    panel().mouseUp({20, 160});
    EXPECT_EQ(window_.origin(), (Point{1676 - 80, 54 + 60}));
    EXPECT_EQ(settings_.windowOrigin(), window_.origin());
}

TEST_F(FloatingPanelTest, GrowingKeepsTheTopLeftCornerAndStoresIt) {
    panel().mouseDown({100, 100});
    panel().mouseDragged({0, 200});
    panel().mouseUp({0, 200});
    const auto before = window_.origin();
    panel().resize({330, 186});
    EXPECT_EQ(window_.panelSize(), (PanelSize{330, 186}));
    EXPECT_EQ(window_.origin(), before);
    EXPECT_EQ(settings_.windowOrigin(), before);
}

}  // namespace
}  // namespace tidewatch
