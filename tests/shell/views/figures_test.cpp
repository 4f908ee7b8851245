// Rounding in the statistics window: printed figures round half to even, as formatting does; only the score
// itself rounds half up.

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "app/desktop/statistics.h"
#include "shell/views/stats_scene.h"

namespace tidewatch {
namespace {

using std::chrono::hours;

/// Productive and distracting seconds of a day.
struct Classified {
    int productive;
    int distracting;
};

struct FiguresTest : testing::Test, StatsWorld {
    [[nodiscard]] DayKey daysAgo(int days) const {
        return services_.counting.days.dayKey(machine_.clock.now() - hours(24 * days));
    }

    void bookScore(const DayKey& day, Classified seconds) {
        if (seconds.productive > 0) book("code", day, 9, 0, seconds.productive);
        if (seconds.distracting > 0) book("supertuxkart", day, 9, 10, seconds.distracting);
    }

    [[nodiscard]] std::string comparison() { return dashboard_.overview()->comparison().toStdString(); }
    [[nodiscard]] std::string color() {
        return dashboard_.overview()->comparisonColor().name().toStdString();
    }

    [[nodiscard]] std::vector<std::string> sharesOfDetails() {
        presenter_.selectTab(detailsTab);
        appear();
        std::vector<std::string> shares;
        for (const auto& row : rowsOf<AppDetails>(dashboard_.details()->rows())) {
            shares.push_back(row.share.toStdString());
        }
        return shares;
    }

    template <class Row>
    [[nodiscard]] static std::vector<Row> rowsOf(RowListModel* list) {
        std::vector<Row> rows;
        for (int i = 0; i < list->rowCount(); ++i) {
            rows.push_back(list->index(i).data(RowListModel::rowRole).value<Row>());
        }
        return rows;
    }
};

constexpr auto green = "#7bd88f";
constexpr auto red = "#d15757";

/// Two days and the comparison shown beside the second one's ring.
struct Comparison {
    Classified before;
    Classified today;
    const char* figure;
    const char* color;
};

const std::vector<Comparison> comparisons{
    {{500, 500}, {625, 375}, "+12%", green},  // 12.5
    {{500, 500}, {875, 125}, "+38%", green},  // 37.5
    {{250, 750}, {875, 125}, "+62%", green},  // 62.5
    {{125, 875}, {1000, 0}, "+88%", green},   // 87.5
    {{625, 375}, {500, 500}, "-12%", red},    // -12.5
    {{875, 125}, {500, 500}, "-38%", red},    // -37.5
    {{1000, 0}, {125, 875}, "-88%", red},     // -87.5
    {{500, 500}, {505, 495}, "+1%", green},   // a last bit above 0.5
    {{500, 500}, {504, 496}, "+0%", green},   // 0.4
    {{500, 500}, {500, 500}, "+0%", green},   // nothing
    {{500, 500}, {499, 501}, "-0%", red},     // -0.1 has its own sign, and is less
    {{500, 500}, {496, 504}, "-0%", red},     // -0.4
    {{505, 495}, {500, 500}, "-1%", red},     // a last bit below -0.5
    {{9999, 1}, {9998, 2}, "-0%", red},       // -0.01
    {{9998, 2}, {9999, 1}, "+0%", green},     // 0.01
    {{1000, 0}, {0, 1000}, "-100%", red},
};

TEST_F(FiguresTest, AComparisonWithYesterdayIsRoundedToTheEvenPointAndColouredByWhatItIs) {
    for (const auto& row : comparisons) {
        SCOPED_TRACE(row.figure);
        machine_.clock.advance(hours(24 * 30));
        dashboard_.header()->today();
        bookScore(daysAgo(1), row.before);
        bookScore(today(), row.today);
        appear();
        EXPECT_EQ(comparison(), std::string(row.figure) + " vs ayer");
        EXPECT_EQ(color(), row.color);
    }
}

TEST_F(FiguresTest, AComparisonWithTheMeanOfTheWeekIsRoundedAndColouredAlike) {
    for (const auto& row : comparisons) {
        SCOPED_TRACE(row.figure);
        machine_.clock.advance(hours(24 * 30));
        dashboard_.header()->today();
        bookScore(daysAgo(2), row.before);
        bookScore(daysAgo(7), row.before);
        bookScore(daysAgo(8), {1, 1000});
        bookScore(today(), row.today);
        appear();
        EXPECT_EQ(comparison(), std::string(row.figure) + " vs prom 7d");
        EXPECT_EQ(color(), row.color);
    }
}

TEST_F(FiguresTest, AYesterdayThatScoredNothingIsComparedWithAllTheSame) {
    // 0.005, 0.015, 0.025 and 0.145 of a hundred: the last is slightly below the half as a double.
    for (const auto& [productive, figure] : {std::pair(5, "+0%"), {15, "+2%"}, {25, "+2%"}, {145, "+14%"}}) {
        SCOPED_TRACE(productive);
        machine_.clock.advance(hours(24 * 30));
        dashboard_.header()->today();
        bookScore(daysAgo(1), {0, 1000});
        bookScore(today(), {productive, 1000 - productive});
        appear();
        EXPECT_EQ(comparison(), std::string(figure) + " vs ayer");
        EXPECT_EQ(color(), green);
    }
}

TEST_F(FiguresTest, AMeanOfZeroIsNotComparedWith) {
    bookScore(daysAgo(3), {0, 1000});
    bookScore(today(), {500, 500});
    appear();
    EXPECT_EQ(comparison(), "");
}

TEST_F(FiguresTest, SixDaysAsGoodAsTodayHaveAMeanALastBitAboveThem) {
    for (int day = 2; day <= 7; ++day) bookScore(daysAgo(day), {700, 300});
    bookScore(today(), {700, 300});
    appear();
    EXPECT_EQ(comparison(), "-0% vs prom 7d");
    EXPECT_EQ(color(), red);
}

TEST_F(FiguresTest, AYesterdayWithoutAFigureLeavesTheWordToTheWeek) {
    bookScore(daysAgo(1), {29, 0});
    bookScore(daysAgo(4), {500, 500});
    bookScore(today(), {750, 250});
    appear();
    EXPECT_EQ(comparison(), "+25% vs prom 7d");
}

TEST_F(FiguresTest, ADayOfThePastIsComparedWithTheDayBeforeIt) {
    bookScore(daysAgo(2), {500, 500});
    bookScore(daysAgo(1), {375, 625});
    bookScore(today(), {1000, 0});
    appear();
    EXPECT_EQ(comparison(), "+62% vs ayer");
    dashboard_.header()->previousDay();
    EXPECT_EQ(comparison(), "-12% vs ayer");
    EXPECT_EQ(color(), red);
}

TEST_F(FiguresTest, SharesOfTheDayAreRoundedToTheEvenPerCent) {
    book("org.gnome.Terminal", today(), 9, 0, 969);
    book("code", today(), 9, 0, 1);           // 0.1
    book("firefox", today(), 9, 0, 5);        // 0.5
    book("thunderbird", today(), 9, 0, 10);   // 1
    book("supertuxkart", today(), 9, 0, 15);  // 1.5
    EXPECT_THAT(sharesOfDetails(), testing::ElementsAre("97%", "2%", "1%", "0%", "0%"));
}

TEST_F(FiguresTest, TwoAndAHalfPerCentAreTwoAndThreeAndAHalfAreFour) {
    book("org.gnome.Terminal", today(), 9, 0, 188);
    book("code", today(), 9, 0, 5);
    book("firefox", today(), 9, 0, 7);
    EXPECT_THAT(sharesOfDetails(), testing::ElementsAre("94%", "4%", "2%"));
}

TEST_F(FiguresTest, ADayThatIsOneApplicationIsAHundredPerCent) {
    book("code", today(), 9, 0, 1);
    EXPECT_THAT(sharesOfDetails(), testing::ElementsAre("100%"));
}

TEST_F(FiguresTest, ApplicationsWithoutASecondHaveNoShareOfADayWithoutOne) {
    machine_.files.put(machine_.appsJson, R"({"2026-01-15":{"code":0}})");
    Services nextStart(machine_.platform);
    Statistics statistics(machine_.platform, nextStart, keys_, {});
    statistics.presenter().selectTab(detailsTab);
    nextStart.broadcaster.post(DashboardWillShow());
    const auto rows = rowsOf<AppDetails>(statistics.dashboard().details()->rows());
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].share, "0%");
    EXPECT_EQ(rows[0].fraction, 0);
    EXPECT_EQ(rows[0].time, "0s");
}

struct ProjectFiguresTest : FiguresTest {
    [[nodiscard]] ProjectSheet sheetOf(std::int64_t seconds, std::int64_t totalDay) {
        const auto project = services_.projects.store.addProject("Film").id;
        bookProject(project, "code", today(), seconds);
        services_.counting.days.set(Seconds(totalDay), today());
        presenter_.selectTab(projectsTab);
        appear();
        for (const auto& sheet : rowsOf<ProjectSheet>(dashboard_.projects()->rows())) {
            if (sheet.id.toStdString() == project.text()) return sheet;
        }
        return {};
    }
};

TEST_F(ProjectFiguresTest, AfterAResetAProjectMayHaveMoreThanTheDay) {
    const auto sheet = sheetOf(60, 40);
    EXPECT_EQ(sheet.share, "150%");
    EXPECT_EQ(sheet.fraction, 1) << "its bar ends at its end";
    EXPECT_EQ(sheet.time, "1m");
}

TEST_F(ProjectFiguresTest, HalvesGoToTheEvenPerCentAboveAHundredToo) {
    EXPECT_EQ(sheetOf(225, 200).share, "112%");
    EXPECT_EQ(sheetOf(235, 200).share, "118%");
}

TEST_F(ProjectFiguresTest, OfADayWithoutTimeAProjectHasNoShare) {
    const auto sheet = sheetOf(60, 0);
    EXPECT_EQ(sheet.share, "0%");
    EXPECT_EQ(sheet.fraction, 0);
}

TEST_F(ProjectFiguresTest, TheLeastShareIsShownAsNone) {
    EXPECT_EQ(sheetOf(1, 200).share, "0%");
    EXPECT_EQ(sheetOf(3, 200).share, "2%");
}

TEST_F(FiguresTest, TheScoreItselfIsRoundedUpwardAtHalves) {
    bookScore(today(), {625, 375});
    appear();
    EXPECT_EQ(dashboard_.overview()->score(), "63%");
}

}  // namespace
}  // namespace tidewatch
