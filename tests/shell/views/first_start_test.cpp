// The statistics before anything has been booked.

#include <gtest/gtest.h>

#include "analysis/views/dashboard_tab_presenter.h"
#include "shell/views/stats_presenter_fixture.h"

namespace tidewatch {
namespace {

struct FirstStartTest : StatsPresenterTest {
    [[nodiscard]] std::vector<const DashboardTabPresenter*> tabs() {
        return {dashboard_.overview(), dashboard_.goals(), dashboard_.details(), dashboard_.timesheet()};
    }
};

TEST_F(FirstStartTest, EachTabSaysWhatItWillShowUntilAnApplicationHasBeenBooked) {
    appear();
    for (const auto* tab : tabs()) {
        EXPECT_TRUE(tab->preview().startsWith("Cuando lleves unos segundos trabajando, aquí ")) << tab;
    }
    book("code", today(), 9, 0, 1);
    appear();
    for (const auto* tab : tabs()) EXPECT_EQ(tab->preview(), "");
}

TEST_F(FirstStartTest, AnEmptyDayOfARecordIsNoFirstStart) {
    book("code", daysAgo(3), 9, 0, 1);
    appear();
    for (const auto* tab : tabs()) EXPECT_EQ(tab->preview(), "");
}

struct FirstStartViewTest : testing::Test, StatsScene {
    /// The text of the item, if it is on the screen.
    [[nodiscard]] QString shownText(const QString& name, const char* property = "text") {
        const auto* found = item(name);
        return found != nullptr && found->isVisible() ? found->property(property).toString() : "(none)";
    }

    void showTab(int tab) {
        presenter_.selectTab(tab);
        appear();
        show({820, 560});
    }
};

TEST_F(FirstStartViewTest, TheTabsShowTheirPreview) {
    showTab(overviewTab);
    EXPECT_EQ(shownText("preview"), dashboard_.overview()->preview());
    showTab(goalsTab);
    EXPECT_EQ(shownText("preview"), dashboard_.goals()->preview());
    for (const int tab : {detailsTab, timesheetTab}) {
        showTab(tab);
        EXPECT_TRUE(shownText("empty").startsWith("Cuando lleves")) << tab;
    }
}

TEST_F(FirstStartViewTest, ThePreviewGoesWithTheFirstSecond) {
    showTab(overviewTab);
    ASSERT_NE(shownText("preview"), "(none)");
    book("code", today(), 9, 0, 1);
    appear();
    EXPECT_EQ(shownText("preview"), "(none)");
}

}  // namespace
}  // namespace tidewatch
