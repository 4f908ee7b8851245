#include "shell/widgets/widget_window.h"

#include <gmock/gmock.h>

#include "shell/widgets/widgets_world.h"

namespace tidewatch {
namespace {

using platform::Point;

class WidgetWindowTest : public WidgetsWorld {
protected:
    static constexpr auto goals = WidgetKind::goals;

    void launchWith(const std::string& widgetsJson) {
        store(widgetsJson);
        launch();
    }

    const platform::Screen left_{{0, 0, 1920, 1080}, {0, 30, 1920, 1050}};
    const platform::Screen right_{{1920, 0, 1280, 1024}, {1920, 0, 1280, 1024}};
};

TEST_F(WidgetWindowTest, AllEightAtOnceCascadeDownToAnOffsetOf196Points) {
    launch();
    for (const auto kind : allWidgetKinds()) toggle(kind);
    double offset = 0;
    for (const auto kind : allWidgetKinds()) {
        EXPECT_EQ(window(kind).origin(),
                  (Point{1920 - defaultSize(kind).width - 24 - offset, 30 + 24 + offset}))
            << rawValue(kind);
        offset += 28;
    }
    EXPECT_EQ(offset - 28, 196);
}

TEST_F(WidgetWindowTest, AStoredPlaceOnAnyScreenIsRestored) {
    machine_.screens.set({left_, right_});
    launchWith(R"({"goals":{"visible":true,"x":2000,"y":500,"scale":1}})");
    EXPECT_EQ(window(goals).origin(), (Point{2000, 500}));
}

TEST_F(WidgetWindowTest, APlaceOnADisconnectedScreenIsIgnoredAndKeptUntilTheNextMouseUp) {
    const std::string text = R"({"goals":{"visible":true,"x":2000,"y":500,"scale":1}})";
    launchWith(text);
    const Point cascaded{1920 - 214 - 24 - 84, 30 + 24 + 84};
    EXPECT_EQ(window(goals).origin(), cascaded);
    EXPECT_EQ(stored(), text);
    click(goals);
    EXPECT_EQ(stored(), R"({"goals":{"visible":true,"x":1598,"y":138,"scale":1}})");
}

TEST_F(WidgetWindowTest, OneCoordinateAloneIsNoPlace) {
    launchWith(R"({"goals":{"visible":true,"x":300,"scale":1},"speed":{"visible":true,"y":300,"scale":1}})");
    EXPECT_EQ(window(goals).origin(), (Point{1598, 138}));
    EXPECT_EQ(window(WidgetKind::speed).origin(), (Point{1920 - 196 - 24 - 112, 30 + 24 + 112}));
}

TEST_F(WidgetWindowTest, WithoutAScreenItStaysWhereItIsMade) {
    machine_.screens.set({});
    launchWith(R"({"goals":{"visible":true,"x":300,"y":300,"scale":1}})");
    EXPECT_EQ(window(goals).origin(), (Point{7, 7}));
}

TEST_F(WidgetWindowTest, AScreenThatComesBackGetsItsWidgetsBack) {
    machine_.screens.set({left_, right_});
    launchWith(R"({"goals":{"visible":true,"x":2000,"y":500,"scale":1}})");
    machine_.screens.set({left_});
    EXPECT_EQ(window(goals).origin(), (Point{1598, 138}));
    machine_.screens.set({left_, right_});
    EXPECT_EQ(window(goals).origin(), (Point{2000, 500}));
}

TEST_F(WidgetWindowTest, AWidgetThatIsHiddenLetsGoOfTheScreens) {
    launchWith(R"({"goals":{"visible":true,"scale":1}})");
    toggle(goals);
    surfaces_.clearLog();
    machine_.screens.set({left_, right_});
    EXPECT_EQ(surfaces_.log(), ScreenLog{"fit"}) << "the clock's";
}

TEST_F(WidgetWindowTest, ItIsAsLargeAsItsScaleSays) {
    launchWith(R"({"goals":{"visible":true,"scale":1.5},"arcade":{"visible":true,"scale":0.5}})");
    EXPECT_EQ(window(goals).panelSize(), (PanelSize{321, 228}));
    EXPECT_EQ(window(WidgetKind::arcade).panelSize(), (PanelSize{107, 187}));
    EXPECT_EQ(window(goals).origin(), (Point{1920 - 321 - 24 - 84, 138}));
}

TEST_F(WidgetWindowTest, AScaleBelowAHalfCountsAsAHalfAndIsKept) {
    const std::string text = R"({"system":{"visible":true,"scale":-3},"goals":{"visible":true,"scale":0.2}})";
    launchWith(text);
    EXPECT_EQ(window(goals).panelSize(), (PanelSize{107, 76}));
    EXPECT_EQ(window(WidgetKind::system).panelSize(), (PanelSize{107, 88}));
    EXPECT_EQ(stored(), text);
}

TEST_F(WidgetWindowTest, EveryReleaseStoresThePlace) {
    launchWith(R"({"goals":{"visible":true,"x":300,"y":300,"scale":2}})");
    drag(goals, {310, 310}, {350, 290});
    EXPECT_EQ(window(goals).origin(), (Point{340, 280}));
    EXPECT_EQ(stored(), R"({"goals":{"visible":true,"x":340,"y":280,"scale":2}})");
    EXPECT_EQ(statistics_.showings(), 0);
}

TEST_F(WidgetWindowTest, AClickOnAWidgetThatWasNeverPlacedStoresItsCascadePlace) {
    launch();
    toggle(goals);
    EXPECT_EQ(stored(), R"({"goals":{"visible":true,"scale":1}})");
    click(goals);
    EXPECT_EQ(stored(), R"({"goals":{"visible":true,"x":1598,"y":138,"scale":1}})");
}

TEST_F(WidgetWindowTest, ATravelOf4Point9IsAClickAndOneOf5IsADrag) {
    launch();
    toggle(goals);
    drag(goals, {100, 100}, {105, 100});
    EXPECT_EQ(statistics_.showings(), 0);
    drag(goals, {100, 100}, {104.9, 100});
    EXPECT_EQ(statistics_.showings(), 1);
}

TEST_F(WidgetWindowTest, TheMenuIsOpenedOnRequest) {
    launch();
    toggle(goals);
    const auto menus = surfaces_.statusItem().menus().size();
    window(goals).gestures().menuRequested();
    EXPECT_EQ(surfaces_.statusItem().menus().size(), menus + 1);
}

}  // namespace
}  // namespace tidewatch
