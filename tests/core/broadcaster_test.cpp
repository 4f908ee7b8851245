#include "core/broadcaster.h"

#include <gtest/gtest.h>

#include <string>

namespace tidewatch {
namespace {

TEST(Broadcaster, TheSixNamesAreExact) {
    EXPECT_EQ(ThemeChanged::name, "Tidewatch.themeChanged");
    EXPECT_EQ(SizeChanged::name, "Tidewatch.sizeChanged");
    EXPECT_EQ(ProjectsChanged::name, "Tidewatch.projectsChanged");
    EXPECT_EQ(FloatingPanelClicked::name, "Tidewatch.floatingPanelClicked");
    EXPECT_EQ(WidgetClicked::name, "Tidewatch.widgetClicked");
    EXPECT_EQ(DashboardWillShow::name, "Tidewatch.dashboardWillShow");
}

TEST(Broadcaster, AnEventReachesItsObserversInOrderAndNobodyElse) {
    Broadcaster broadcaster;
    std::string calls;
    const auto first = broadcaster.observe<ThemeChanged>([&](const auto&) { calls += "a"; });
    const auto second = broadcaster.observe<ThemeChanged>([&](const auto&) { calls += "b"; });
    const auto other = broadcaster.observe<SizeChanged>([&](const auto&) { calls += "x"; });
    broadcaster.post(ThemeChanged{});
    EXPECT_EQ(calls, "ab");
}

TEST(Broadcaster, AWidgetsClickCarriesItsKind) {
    Broadcaster broadcaster;
    std::string kind;
    const auto observing = broadcaster.observe<WidgetClicked>([&](const auto& event) { kind = event.kind; });
    broadcaster.post(WidgetClicked{"hours"});
    EXPECT_EQ(kind, "hours");
}

TEST(Broadcaster, AnEndedConnectionObservesNoMore) {
    Broadcaster broadcaster;
    int calls = 0;
    auto observing = broadcaster.observe<DashboardWillShow>([&](const auto&) { ++calls; });
    broadcaster.post(DashboardWillShow{});
    observing.disconnect();
    broadcaster.post(DashboardWillShow{});
    EXPECT_EQ(calls, 1);
}

}  // namespace
}  // namespace tidewatch
