// A day that starts at five o'clock, from booking to the tabs.

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "shell/views/stats_scene.h"

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;
using testing::ElementsAre;

const DayKey wednesday("2026-01-14");
const DayKey thursday("2026-01-15");

struct DayFromFiveTest : testing::Test, StatsWorld {
    DayFromFiveTest() {
        services_.counting.settings.setDayStartHour(5);
        machine_.putAppInFront("code");
    }

    /// The first second is booked at `from`.
    void work(Instant from, seconds duration) {
        machine_.clock.setNow(from - 1s);
        services_.engine.start();
        machine_.mainLoop.runFor(duration);
        services_.engine.stop();
    }

    [[nodiscard]] static Instant at(year_month_day date, minutes time) { return sys_days(date) + time; }

    [[nodiscard]] std::vector<std::string> hoursOfTheSheet() {
        presenter_.selectTab(timesheetTab);
        appear();
        std::vector<std::string> texts;
        for (const auto& row : rows<HourSheet>(dashboard_.timesheet()->hours())) {
            texts.push_back(row.hour.toStdString());
        }
        return texts;
    }

    template <class Row>
    [[nodiscard]] static std::vector<Row> rows(RowListModel* list) {
        std::vector<Row> all;
        for (int i = 0; i < list->rowCount(); ++i) {
            all.push_back(list->index(i).data(RowListModel::rowRole).value<Row>());
        }
        return all;
    }
};

TEST_F(DayFromFiveTest, TheNightIsBookedToTheDayBeforeUnderTheHoursOfTheClock) {
    work(at(2026y / 1 / 15, 23h + 59min) + 58s, 5s);
    work(at(2026y / 1 / 16, 2h + 34min), 3s);
    EXPECT_EQ(services_.counting.days.seconds(thursday), Seconds(8));
    EXPECT_EQ(services_.counting.days.seconds(DayKey("2026-01-16")), Seconds(0));
    EXPECT_EQ(services_.counting.hours.seconds(HourKey("2026-01-15 23")), Seconds(2));
    EXPECT_EQ(services_.counting.hours.seconds(HourKey("2026-01-15 00")), Seconds(3));
    EXPECT_EQ(services_.counting.hours.seconds(HourKey("2026-01-15 02")), Seconds(3));
    EXPECT_THAT(services_.counting.minutes.entries(BucketKey("2026-01-15 23:50")),
                ElementsAre(AppSeconds{AppId("code"), Seconds(2)}));
    EXPECT_THAT(services_.counting.minutes.entries(BucketKey("2026-01-15 00:00")),
                ElementsAre(AppSeconds{AppId("code"), Seconds(3)}));
    EXPECT_THAT(services_.counting.minutes.entries(BucketKey("2026-01-15 02:30")),
                ElementsAre(AppSeconds{AppId("code"), Seconds(3)}));
}

TEST_F(DayFromFiveTest, AtFiveTheNewDayBeginsInEveryStore) {
    work(at(2026y / 1 / 15, 4h + 59min) + 58s + 500ms, 5s);
    EXPECT_EQ(services_.counting.days.seconds(wednesday), Seconds(2));
    EXPECT_EQ(services_.counting.days.seconds(thursday), Seconds(3));
    EXPECT_EQ(services_.counting.hours.seconds(HourKey("2026-01-14 04")), Seconds(2));
    EXPECT_EQ(services_.counting.hours.seconds(HourKey("2026-01-15 05")), Seconds(3));
    EXPECT_THAT(services_.counting.minutes.entries(BucketKey("2026-01-14 04:50")),
                ElementsAre(AppSeconds{AppId("code"), Seconds(2)}));
    EXPECT_THAT(services_.counting.minutes.entries(BucketKey("2026-01-15 05:00")),
                ElementsAre(AppSeconds{AppId("code"), Seconds(3)}));
    EXPECT_THAT(services_.counting.apps.aggregate(std::vector{wednesday}),
                ElementsAre(AppSeconds{AppId("code"), Seconds(2)}));
    EXPECT_EQ(services_.engine.liveSeconds(), Seconds(3)) << "a session ends with its day";
}

TEST_F(DayFromFiveTest, TheBarsRunFromFiveToFour) {
    work(at(2026y / 1 / 15, 22h + 10min), 300s);
    work(at(2026y / 1 / 16, 2h + 30min), 600s);
    machine_.clock.setNow(at(2026y / 1 / 15, 23h));
    dashboard_.header()->today();
    appear();
    const auto bars = rows<HourBar>(dashboard_.overview()->hours());
    std::vector<std::string> labels;
    for (const auto& bar : bars) labels.push_back(bar.label.toStdString());
    EXPECT_THAT(labels,
                ElementsAre("5a", "6a", "7a", "8a", "9a", "10a", "11a", "12p", "1p", "2p", "3p", "4p", "5p",
                            "6p", "7p", "8p", "9p", "10p", "11p", "12a", "1a", "2a", "3a", "4a"));
    EXPECT_DOUBLE_EQ(bars[17].height, 0.5);
    EXPECT_DOUBLE_EQ(bars[21].height, 1);
    EXPECT_DOUBLE_EQ(bars[2].height, 0.04);
    EXPECT_EQ(dashboard_.overview()->hoursAccessibleText(), "Actividad por hora: 10 pm 5m, 2 am 10m.");
}

TEST_F(DayFromFiveTest, TheTimesheetPutsTheNightAfterTheEvening) {
    work(at(2026y / 1 / 15, 5h), 3s);
    work(at(2026y / 1 / 15, 12h + 5min), 3s);
    work(at(2026y / 1 / 15, 23h + 55min), 3s);
    work(at(2026y / 1 / 16, 15min), 3s);
    work(at(2026y / 1 / 16, 4h + 59min), 3s);
    machine_.clock.setNow(at(2026y / 1 / 15, 12h));
    dashboard_.header()->today();
    EXPECT_THAT(hoursOfTheSheet(), ElementsAre("5:00am", "12:00pm", "11:00pm", "12:00am", "4:00am"));
    const auto midnight = rows<HourSheet>(dashboard_.timesheet()->hours())[3];
    std::vector<std::string> filled;
    for (const auto& cell : midnight.buckets) filled.push_back(cell.filled ? "x" : "-");
    EXPECT_THAT(filled, ElementsAre("-", "x", "-", "-", "-", "-"));
    EXPECT_EQ(midnight.buckets[1].accessibleText, "12:10am, 3s, Productivo");
}

TEST_F(DayFromFiveTest, ThePeakHourIsTheOneOnTheClock) {
    work(at(2026y / 1 / 16, 2h + 30min), 100s);
    work(at(2026y / 1 / 16, 9h), 60s);
    appear();
    const auto peak = rows<StatTile>(dashboard_.insights()->tiles())[0];
    EXPECT_EQ(peak.value, "2 am");
    EXPECT_EQ(peak.subtitle, "prom. 6 am") << "of two days, at two and at nine";
}

// Sessions follow the dates in the keys, and a night belongs to the day before.

TEST_F(DayFromFiveTest, ASessionOfTheNightStandsUnderTheDateOfItsDay) {
    work(at(2026y / 1 / 16, 1h), 1200s);
    appear();
    EXPECT_EQ(dashboard_.insights()->sessionLength(), "20m");
    EXPECT_EQ(dashboard_.insights()->sessionDay(), "jue 15 ene");
    EXPECT_EQ(dashboard_.insights()->sessionTimes(), "1:00 am – 1:20 am");
}

TEST_F(DayFromFiveTest, WorkAcrossMidnightIsTwoSessions) {
    work(at(2026y / 1 / 15, 23h + 30min), 3000s);
    appear();
    EXPECT_EQ(dashboard_.insights()->sessionLength(), "30m");
    EXPECT_EQ(dashboard_.insights()->sessionTimes(), "11:30 pm – 12:00 am");
}

TEST_F(DayFromFiveTest, WorkAcrossTheStartOfTheDayIsTwoSessions) {
    work(at(2026y / 1 / 15, 4h + 40min), 3000s);
    appear();
    EXPECT_EQ(dashboard_.insights()->sessionLength(), "30m");
    EXPECT_EQ(dashboard_.insights()->sessionDay(), "jue 15 ene");
    EXPECT_EQ(dashboard_.insights()->sessionTimes(), "5:00 am – 5:30 am");
}

TEST_F(DayFromFiveTest, WithTheDayFromMidnightBothAreOneSession) {
    services_.counting.settings.setDayStartHour(0);
    work(at(2026y / 1 / 15, 23h + 30min), 3000s);
    appear();
    EXPECT_EQ(dashboard_.insights()->sessionLength(), "50m");
    EXPECT_EQ(dashboard_.insights()->sessionDay(), "jue 15 ene");
    EXPECT_EQ(dashboard_.insights()->sessionTimes(), "11:30 pm – 12:20 am");
}

TEST_F(DayFromFiveTest, AtTwoInTheNightTheWindowShowsTheCalendarsDayAndTheStatusTheUsers) {
    work(at(2026y / 1 / 15, 22h), 100s);
    machine_.clock.setNow(at(2026y / 1 / 16, 2h));
    dashboard_.header()->today();
    appear();
    EXPECT_EQ(dashboard_.header()->date(), "vie 16 ene");
    EXPECT_EQ(dashboard_.overview()->total(), "0s");
    EXPECT_EQ(services_.counting.days.today(), thursday);
    dashboard_.header()->previousDay();
    EXPECT_EQ(dashboard_.overview()->total(), "1m");
}

}  // namespace
}  // namespace tidewatch
