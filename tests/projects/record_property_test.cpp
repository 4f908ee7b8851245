// Days of random work through the real tick, compared with a list of the worked seconds, from which every sum
// is computed in the simplest way.

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/fake/fake_time_zone.h"
#include "projects/active_project_booking.h"
#include "tests/support/classification_fixture.h"
#include "tools/support/random.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

// One second that the user worked.
struct WorkedSecond {
    DayKey day;
    int hour;
    int minute;  // the start of its ten minutes
    AppId app;   // empty: none that can be booked
    std::optional<Uuid> project;
};

using Sums = std::map<std::string, std::int64_t>;

// All that lives for one run of the program.
struct Fixture {
    Fixture(test::FakeWorld& world, const Broadcaster& broadcaster)
        : projects(world.files, world.log, world.randomness, broadcaster),
          times(world.files, world.log, world.frontmost),
          booking(projects, times),
          fixture(world, {nullptr, nullptr, &booking}) {
        fixture.engine.start();
    }

    ProjectStore projects;
    ProjectTimeStore times;
    ActiveProjectBooking booking;
    test::ClassificationFixture fixture;
};

class RecordPropertyTest : public testing::TestWithParam<std::uint32_t> {
protected:
    RecordPropertyTest() {
        // Including one that is in no table, one that the desktop registers, one with a difficult name, the
        // program itself and none at all.
        for (const auto* app :
             {"com.apple.dt.Xcode", "com.google.Chrome", "com.apple.finder", "com.spotify.client",
              "com.hnc.Discord", "com.apple.TV", "us.zoom.xos", "org.example.unknown", "org.example.Terminal",
              "a/\"b\"\\ñ", "com.brightlooms.tidewatch", ""}) {
            apps_.emplace_back(app);
        }
        world_.applications.registerApplication(AppId("org.example.Terminal"),
                                                {"Terminal", "", {"TerminalEmulator"}});
        world_.clock.setZone(random_.onceIn(2) ? platform::madridZone() : platform::mexicoCityZone());
        // A night in which Madrid changes its clocks, or in which Mexico did.
        world_.clock.setNow(std::chrono::sys_days(std::chrono::October / 24 / 2020) +
                            std::chrono::minutes(random_.between(0, 1439)));
        start();
        record().settings.setDayStartHour(random_.between(0, 23));
        work();
    }

    [[nodiscard]] test::ClassificationFixture& record() { return running_->fixture; }

    void start() { running_.emplace(world_, broadcaster_); }

    void restart() {
        running_->fixture.engine.stop();
        start();
    }

    void work() {
        for (int second = 0; second < 4000; ++second) {
            changeSomething();
            tick();
        }
    }

    void changeSomething() {
        if (random_.onceIn(20)) world_.frontmost.set(random_.oneOf(apps_));
        if (random_.onceIn(60)) world_.inputActivity.set(random_.between(0, 400));
        if (random_.onceIn(150)) world_.clock.suspend(std::chrono::minutes(random_.between(1, 300)));
        if (random_.onceIn(400)) chooseProject();
        if (random_.onceIn(1500)) restart();
    }

    void chooseProject() {
        auto& projects = running_->projects;
        if (random_.onceIn(3) || projects.projects().empty()) {
            ids_.push_back(projects.addProject("p").id);
            projects.setActive(ids_.back());
        } else if (random_.onceIn(3)) {
            projects.setActive(std::nullopt);
        } else if (random_.onceIn(3)) {
            projects.deleteProject(random_.oneOf(ids_));
        } else {
            projects.setActive(random_.oneOf(ids_));
        }
    }

    void tick() {
        world_.mainLoop.runFor(1s);
        if (*world_.inputActivity.secondsSinceLastInput() >= 300) return;
        const auto now = world_.clock.now();
        const auto local = civilTime(now, world_.clock.timeZone()->utcOffset(now));
        const auto app = world_.frontmost.current().value_or(AppId());
        const bool bookable = app != AppId("com.brightlooms.tidewatch");
        worked_.push_back({record().days.today(), local.hour, local.minute / 10 * 10,
                           bookable ? app : AppId(), running_->projects.activeProjectId()});
    }

    [[nodiscard]] std::set<DayKey> days() const {
        std::set<DayKey> result;
        for (const auto& second : worked_) result.insert(second.day);
        return result;
    }

    // The number of seconds that satisfy `counts`, by `nameOf`.
    template <class Counts, class NameOf>
    [[nodiscard]] Sums count(Counts counts, NameOf nameOf) const {
        Sums sums;
        for (const auto& second : worked_) {
            if (counts(second)) ++sums[nameOf(second)];
        }
        return sums;
    }

    [[nodiscard]] static Sums asSums(const std::vector<AppSeconds>& apps) {
        Sums sums;
        for (const auto& [app, seconds] : apps) sums[app.text()] += seconds.count();
        return sums;
    }

    static std::string appOf(const WorkedSecond& second) { return second.app.text(); }

    // Seconds with an application that fulfil more conditions.
    template <class Counts>
    [[nodiscard]] Sums countApps(Counts counts) const {
        return count([&](const WorkedSecond& second) { return !second.app.empty() && counts(second); },
                     appOf);
    }

    [[nodiscard]] std::int64_t ofTier(const Sums& apps, Tier tier) {
        std::int64_t sum = 0;
        for (const auto& [app, seconds] : apps) {
            if (record().categories.tier(AppId(app)) == tier) sum += seconds;
        }
        return sum;
    }

    [[nodiscard]] static std::int64_t total(const Sums& sums) {
        std::int64_t result = 0;
        for (const auto& [name, seconds] : sums) result += seconds;
        return result;
    }

    void expectScoresToAgree() {
        for (const auto& day : days()) {
            const auto apps = countApps([&](const WorkedSecond& s) { return s.day == day; });
            const auto score = record().scorer.compute(std::vector{day});
            EXPECT_EQ(score.productiveSeconds.count(), ofTier(apps, Tier::productive)) << day.text();
            EXPECT_EQ(score.neutralSeconds.count(), ofTier(apps, Tier::neutral)) << day.text();
            EXPECT_EQ(score.distractingSeconds.count(), ofTier(apps, Tier::distracting)) << day.text();
            EXPECT_EQ(score.uncategorizedSeconds.count(), ofTier(apps, Tier::uncategorized)) << day.text();
            EXPECT_EQ(score.totalActive().count(), total(apps)) << day.text();
        }
    }

    void expectHoursToAgree() {
        for (const auto& day : days()) {
            const auto hours = record().hourSummaries(day);
            ASSERT_EQ(hours.size(), 24u);
            for (std::size_t i = 0; i < hours.size(); ++i) {
                const auto& hour = hours[i];
                EXPECT_EQ(hour.hour, (record().settings.dayStartHour() + static_cast<int>(i)) % 24);
                const auto apps =
                    countApps([&](const WorkedSecond& s) { return s.day == day && s.hour == hour.hour; });
                EXPECT_EQ(hour.seconds.count(), total(apps)) << hour.id.text();
                EXPECT_EQ(hour.productive.count(), ofTier(apps, Tier::productive)) << hour.id.text();
                EXPECT_EQ(hour.neutral.count(), ofTier(apps, Tier::neutral)) << hour.id.text();
                EXPECT_EQ(hour.distracting.count(), ofTier(apps, Tier::distracting)) << hour.id.text();
            }
        }
    }

    void expectGroupsToAgree() {
        for (const auto& day : days()) {
            const auto groups = record().groups(day);
            std::set<int> hoursWithWork;
            for (const auto& s : worked_) {
                if (s.day == day && !s.app.empty()) hoursWithWork.insert(s.hour);
            }
            ASSERT_EQ(groups.size(), hoursWithWork.size()) << day.text();
            for (const auto& group : groups) {
                EXPECT_TRUE(hoursWithWork.contains(group.hour)) << group.id();
                expectGroupToAgree(group);
            }
        }
    }

    void expectGroupToAgree(const HourGroup& group) {
        const auto inHour = [&](const WorkedSecond& s) { return s.day == group.day && s.hour == group.hour; };
        const auto apps = countApps(inHour);
        EXPECT_EQ(group.totalSeconds.count(), total(apps));
        EXPECT_EQ(group.productive.count(), ofTier(apps, Tier::productive));
        EXPECT_EQ(group.neutral.count(), ofTier(apps, Tier::neutral));
        EXPECT_EQ(group.distracting.count(), ofTier(apps, Tier::distracting));
        ASSERT_EQ(group.buckets.size(), 6u);
        for (const auto& bucket : group.buckets) {
            const auto inBucket =
                countApps([&](const WorkedSecond& s) { return inHour(s) && s.minute == bucket.minute; });
            EXPECT_EQ(bucket.seconds.count(), total(inBucket)) << bucket.id.text();
            EXPECT_EQ(bucket.productive.count(), ofTier(inBucket, Tier::productive)) << bucket.id.text();
            EXPECT_EQ(bucket.distracting.count(), ofTier(inBucket, Tier::distracting)) << bucket.id.text();
        }
        expectTopsToAgree(group, apps);
    }

    void expectTopsToAgree(const HourGroup& group, const Sums& apps) {
        EXPECT_EQ(group.topActivities.size(), std::min<std::size_t>(apps.size(), 6));
        std::multiset<std::int64_t, std::greater<>> bySize;
        for (const auto& [app, seconds] : apps) bySize.insert(seconds);
        auto expected = bySize.begin();
        for (const auto& activity : group.topActivities) {
            EXPECT_EQ(activity.seconds.count(), *expected++);
            EXPECT_EQ(activity.seconds.count(), apps.at(activity.app.text()));
            EXPECT_EQ(activity.tier, record().categories.tier(activity.app));
        }
        Sums categories;
        for (const auto& [app, seconds] : apps) {
            categories[std::string(rawValue(record().categories.category(AppId(app))))] += seconds;
        }
        EXPECT_EQ(group.topCategories.size(), std::min<std::size_t>(categories.size(), 5));
        for (const auto& top : group.topCategories) {
            EXPECT_EQ(top.seconds.count(), categories.at(std::string(rawValue(top.category))));
            EXPECT_EQ(top.tier, record().categories.tier(top.category));
        }
    }

    void expectStoresToAgree() {
        const auto byDay = count([](const WorkedSecond&) { return true; },
                                 [](const WorkedSecond& s) { return s.day.text(); });
        for (const auto& [day, seconds] : byDay) {
            EXPECT_EQ(record().days.seconds(DayKey(day)).count(), seconds) << day;
            const auto apps = countApps([&day = day](const WorkedSecond& s) { return s.day.text() == day; });
            EXPECT_EQ(asSums(record().apps.aggregate(std::vector{DayKey(day)})), apps) << day;
            expectProjectsToAgree(DayKey(day));
        }
    }

    void expectProjectsToAgree(const DayKey& day) {
        std::int64_t tagged = 0;
        for (const auto& id : ids_) {
            const auto apps =
                countApps([&](const WorkedSecond& s) { return s.day == day && s.project == id; });
            EXPECT_EQ(asSums(running_->times.aggregate(std::vector{day}, id)), apps) << day.text();
            EXPECT_EQ(running_->times.totalSeconds(std::vector{day}, id).count(), total(apps)) << day.text();
            const auto ofProject = running_->times.allDayKeys(id);
            EXPECT_EQ(std::ranges::find(ofProject, day) != ofProject.end(), !apps.empty()) << day.text();
            tagged += total(apps);
        }
        EXPECT_EQ(running_->times.taggedSeconds(day).count(), tagged) << day.text();
    }

    void expectEverythingToAgree() {
        expectStoresToAgree();
        expectScoresToAgree();
        expectHoursToAgree();
        expectGroupsToAgree();
    }

    Random random_{GetParam()};
    test::FakeWorld world_;
    Broadcaster broadcaster_;
    std::vector<AppId> apps_;
    std::vector<Uuid> ids_;
    std::optional<Fixture> running_;
    std::vector<WorkedSecond> worked_;
};

TEST_P(RecordPropertyTest, EverySummaryAgreesWithTheListOfWorkedSeconds) {
    ASSERT_FALSE(worked_.empty());
    expectEverythingToAgree();
}

TEST_P(RecordPropertyTest, WhatIsReadBackAgreesAndIsWrittenAgainByteForByte) {
    const auto files = {world_.todayJson, world_.appsJson, world_.hoursJson, world_.minutesJson,
                        world_.projectTimeJson};
    record().engine.stop();
    std::map<std::string, std::string> written;
    for (const auto& file : files) written[file] = world_.files.content(file).value();
    start();
    expectEverythingToAgree();
    record().engine.stop();
    for (const auto& file : files) EXPECT_EQ(world_.files.content(file), written[file]);
}

TEST_P(RecordPropertyTest, AChangeOfClassificationMovesPastDays) {
    for (int change = 0; change < 6; ++change) {
        if (random_.onceIn(2)) {
            record().categories.setTier(random_.oneOf(allTiers()), random_.oneOf(allCategories()));
        } else {
            record().categories.setCategory(random_.oneOf(allCategories()), random_.oneOf(apps_));
        }
        expectScoresToAgree();
    }
    expectHoursToAgree();
    expectGroupsToAgree();
    record().engine.stop();
    start();
    expectScoresToAgree();
}

TEST_P(RecordPropertyTest, AChangeOfDayStartLosesNoHour) {
    std::int64_t before = 0;
    for (const auto& day : days()) {
        for (const auto& hour : record().hourSummaries(day)) before += hour.seconds.count();
    }
    record().settings.setDayStartHour(random_.between(0, 23));
    std::int64_t after = 0;
    for (const auto& day : days()) {
        for (const auto& hour : record().hourSummaries(day)) after += hour.seconds.count();
    }
    EXPECT_EQ(after, before);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RecordPropertyTest, testing::Range(1u, 9u));

}  // namespace
}  // namespace tidewatch
