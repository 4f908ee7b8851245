#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

#include "app/program_world.h"
#include "platform/fake/fake_screens.h"
#include "shell/floating_panel.h"

namespace tidewatch {
namespace {

using platform::Point;

/// Several windows in the layer below; each position is stored under its own key.
class FloatingPlacesTest : public testing::Test {
protected:
    struct Placed {
        std::string key;
        FakeFloatingWindow window;
        std::unique_ptr<FloatingPanel> panel;
        int clicks = 0;
    };

    std::unique_ptr<Placed> make(const std::string& key, Point cascade) {
        auto placed = std::make_unique<Placed>(Placed{key, FakeFloatingWindow{{240, 160}, log_}, nullptr});
        placed->panel = std::make_unique<FloatingPanel>(
            placed->window, screens_,
            FloatingPanel::Owner{
                .place = {.load = [this, key]() -> std::optional<Point> {
                              const auto found = places_.find(key);
                              return found == places_.end() ? std::nullopt : std::optional(found->second);
                          },
                          .save = [this, key](Point origin) { places_[key] = origin; }},
                .defaultPlace = [cascade](PanelSize) { return cascade; },
                .clicked = [one = placed.get()] { ++one->clicks; },
                .menuRequested = nullptr,
            });
        return placed;
    }

    static void drag(const Placed& placed, Point from, Point to) {
        placed.window.gestures().mouseDown(from);
        placed.window.gestures().mouseDragged(to);
        placed.window.gestures().mouseUp(to);
    }

    platform::FakeScreens screens_;
    ScreenLog log_;
    std::map<std::string, Point> places_;
};

TEST_F(FloatingPlacesTest, EachHasThePlaceOfItsOwnKeyAndWithoutOneTheOneItIsGiven) {
    places_["goals"] = {700, 300};
    EXPECT_EQ(make("goals", {60, 90})->window.origin(), (Point{700, 300}));
    EXPECT_EQ(make("streak", {60, 90})->window.origin(), (Point{60, 90}));
    EXPECT_EQ(places_.size(), 1U) << "a place is stored by the mouse, not by the start";
}

TEST_F(FloatingPlacesTest, AStoredPlaceThatNoScreenShowsGivesWayAndStaysStoredUntilTheNextRelease) {
    places_["goals"] = {5000, 300};
    const auto goals = make("goals", {60, 90});
    EXPECT_EQ(goals->window.origin(), (Point{60, 90}));
    EXPECT_EQ(places_["goals"], (Point{5000, 300}));
    drag(*goals, {100, 100}, {100, 100});
    EXPECT_EQ(places_["goals"], (Point{60, 90}));
}

TEST_F(FloatingPlacesTest, ADragStoresItsOwnPlaceAlone) {
    const auto goals = make("goals", {60, 90});
    const auto streak = make("streak", {88, 118});
    drag(*goals, {100, 100}, {150, 170});
    EXPECT_EQ(places_, (std::map<std::string, Point>{{"goals", {110, 160}}}));
    EXPECT_EQ(streak->window.origin(), (Point{88, 118}));
    EXPECT_EQ(goals->clicks, 0);
}

TEST_F(FloatingPlacesTest, AReleaseBelowTheThresholdIsAClickOfThatWindow) {
    const auto goals = make("goals", {60, 90});
    const auto streak = make("streak", {88, 118});
    drag(*goals, {100, 100}, {103, 103});
    EXPECT_EQ(goals->clicks, 1);
    EXPECT_EQ(streak->clicks, 0);
    EXPECT_EQ(goals->window.origin(), (Point{60, 90}));
}

TEST_F(FloatingPlacesTest, ADragThatComesBackEndsAsAClickWhereItBegan) {
    const auto goals = make("goals", {60, 90});
    goals->window.gestures().mouseDown({100, 100});
    goals->window.gestures().mouseDragged({140, 100});
    goals->window.gestures().mouseDragged({101, 100});
    EXPECT_EQ(goals->window.origin(), (Point{61, 90})) << "once a drag, it follows every point";
    goals->window.gestures().mouseUp({101, 100});
    EXPECT_EQ(goals->clicks, 1);
    EXPECT_EQ(places_["goals"], (Point{61, 90}));
}

}  // namespace
}  // namespace tidewatch
