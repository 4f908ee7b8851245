#include "projects/project_time_store.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "projects/active_project_booking.h"
#include "tests/support/core_fixture.h"

namespace tidewatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

const DayKey monday("2026-01-12");
const DayKey tuesday("2026-01-13");
const DayKey today("2026-01-15");
const Uuid red = *Uuid::parse("0F8FAD5B-D9CB-469F-A165-70867728950E");
const Uuid blue = *Uuid::parse("7C9E6679-7425-40DE-944B-E07FC1F90AE7");

constexpr auto goodFile =
    "{\n"
    "  \"2026-01-12\" : {\n"
    "    \"0F8FAD5B-D9CB-469F-A165-70867728950E\" : {\n"
    "      \"firefox\" : 2,\n"
    "      \"org\\/café\" : 1\n"
    "    },\n"
    "    \"7C9E6679-7425-40DE-944B-E07FC1F90AE7\" : {\n"
    "      \"firefox\" : 3\n"
    "    }\n"
    "  }\n"
    "}";

struct ProjectTimeStoreTest : testing::Test {
    test::FakeWorld world;
    ProjectTimeStore store{world.files, world.log, world.frontmost};

    void book(const char* app, const DayKey& day, const Uuid& project, int seconds) {
        world.putAppInFront(app);
        for (int i = 0; i < seconds; ++i) store.incrementCurrentApp(day, project);
    }
    [[nodiscard]] std::vector<AppSeconds> sums(std::vector<DayKey> days, const Uuid& project) const {
        return store.aggregate(days, project);
    }
};

TEST_F(ProjectTimeStoreTest, AggregateSumsAProjectOverTheDaysMostSecondsFirst) {
    book("firefox", monday, red, 2);
    book("xterm", monday, red, 1);
    book("xterm", tuesday, red, 4);
    book("firefox", monday, blue, 9);
    EXPECT_THAT(sums({monday, tuesday}, red), ElementsAre(AppSeconds{AppId("xterm"), Seconds(5)},
                                                          AppSeconds{AppId("firefox"), Seconds(2)}));
    EXPECT_THAT(sums({monday}, blue), ElementsAre(AppSeconds{AppId("firefox"), Seconds(9)}));
}

TEST_F(ProjectTimeStoreTest, DaysAndProjectsThatAreMissingAddNothingAndADayGivenTwiceCountsTwice) {
    book("firefox", monday, red, 2);
    EXPECT_THAT(sums({}, red), IsEmpty());
    EXPECT_THAT(sums({tuesday}, red), IsEmpty());
    EXPECT_THAT(sums({monday}, blue), IsEmpty());
    EXPECT_THAT(sums({monday, tuesday, monday}, red), ElementsAre(AppSeconds{AppId("firefox"), Seconds(4)}));
    EXPECT_EQ(store.totalSeconds(std::vector{monday, monday}, red), Seconds(4));
}

TEST_F(ProjectTimeStoreTest, EqualSecondsAllAppear) {
    book("firefox", monday, red, 2);
    book("xterm", monday, red, 2);
    EXPECT_THAT(sums({monday}, red), UnorderedElementsAre(AppSeconds{AppId("xterm"), Seconds(2)},
                                                          AppSeconds{AppId("firefox"), Seconds(2)}));
}

TEST_F(ProjectTimeStoreTest, TotalSecondsAreZeroIfNothingIsFound) {
    EXPECT_EQ(store.totalSeconds(std::vector{monday}, red), Seconds(0));
    book("firefox", monday, red, 2);
    book("xterm", tuesday, red, 5);
    EXPECT_EQ(store.totalSeconds(std::vector{monday, tuesday}, red), Seconds(7));
    EXPECT_EQ(store.totalSeconds(std::vector{monday, tuesday}, blue), Seconds(0));
}

TEST_F(ProjectTimeStoreTest, TaggedSecondsAreThoseOfAllProjectsOfTheDay) {
    EXPECT_EQ(store.taggedSeconds(monday), Seconds(0));
    book("firefox", monday, red, 2);
    book("xterm", monday, blue, 5);
    book("xterm", tuesday, blue, 50);
    EXPECT_EQ(store.taggedSeconds(monday), Seconds(7));
}

TEST_F(ProjectTimeStoreTest, AllDayKeysOfAnUnknownProjectAreNone) {
    book("firefox", monday, red, 1);
    EXPECT_THAT(store.allDayKeys(blue), IsEmpty());
}

TEST_F(ProjectTimeStoreTest, AProjectThatWasActiveAllTuesdayWithTheOwnWindowInFrontHasOnlyMonday) {
    book("firefox", monday, red, 1);
    book("com.brightlooms.tidewatch", tuesday, red, 100);
    EXPECT_THAT(store.allDayKeys(red), ElementsAre(monday));
}

TEST_F(ProjectTimeStoreTest, AllDayKeysAreInAscendingOrder) {
    book("firefox", tuesday, red, 1);
    book("firefox", monday, red, 1);
    EXPECT_THAT(store.allDayKeys(red), ElementsAre(monday, tuesday));
}

TEST_F(ProjectTimeStoreTest, TheFileHoldsThreeLevelsInOrder) {
    book("firefox", monday, blue, 3);
    book("org/café", monday, red, 1);
    book("firefox", monday, red, 2);
    store.flush();
    EXPECT_EQ(world.files.content(world.projectTimeJson), goodFile);
    EXPECT_EQ(store.dataFilePath(), world.projectTimeJson);
}

TEST_F(ProjectTimeStoreTest, TheFileIsReadAndWrittenBackByteForByte) {
    world.files.put(world.projectTimeJson, goodFile);
    ProjectTimeStore next(world.files, world.log, world.frontmost);
    EXPECT_EQ(next.taggedSeconds(monday), Seconds(6));
    next.flush();
    EXPECT_EQ(world.files.content(world.projectTimeJson), goodFile);
}

TEST_F(ProjectTimeStoreTest, EveryTruncationIsReadAsNoDataAndReplaced) {
    const std::string whole = goodFile;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        world.files.put(world.projectTimeJson, whole.substr(0, length));
        ProjectTimeStore next(world.files, world.log, world.frontmost);
        EXPECT_EQ(next.taggedSeconds(monday), Seconds(0)) << length;
        next.flush();
        EXPECT_EQ(world.files.content(world.projectTimeJson), "{\n\n}") << length;
    }
}

TEST_F(ProjectTimeStoreTest, WithoutThreeLevelsItReadsAsNoData) {
    for (const auto* text : {"[]", "null", R"({"2026-01-12":5})", R"({"2026-01-12":{"a":5}})",
                             R"({"2026-01-12":{"a":{"b":{"c":5}}}})", R"({"2026-01-12":{"a":{"b":"5"}}})"}) {
        world.files.put(world.projectTimeJson, text);
        ProjectTimeStore next(world.files, world.log, world.frontmost);
        next.flush();
        EXPECT_EQ(world.files.content(world.projectTimeJson), "{\n\n}") << text;
    }
}

TEST_F(ProjectTimeStoreTest, ADamagedFileIsSetAsideByTheNextFlush) {
    world.files.put(world.projectTimeJson, "garbage");
    ProjectTimeStore(world.files, world.log, world.frontmost).flush();
    EXPECT_EQ(world.files.content(world.projectTimeJson + ".damaged-2026-01-15"), "garbage");
}

TEST_F(ProjectTimeStoreTest, EveryByteGarbledNeitherCrashesNorLeavesAnUnreadableFile) {
    const std::string whole = goodFile;
    for (std::size_t at = 0; at < whole.size(); ++at) {
        for (const char garbage : {'\0', '"', '{', '}', ',', '9', '\xFF'}) {
            auto damaged = whole;
            damaged[at] = garbage;
            world.files.put(world.projectTimeJson, damaged);
            ProjectTimeStore damagedStore(world.files, world.log, world.frontmost);
            damagedStore.flush();
            const auto written = world.files.content(world.projectTimeJson);
            ProjectTimeStore next(world.files, world.log, world.frontmost);
            next.flush();
            ASSERT_EQ(world.files.content(world.projectTimeJson), written) << damaged;
        }
    }
}

TEST_F(ProjectTimeStoreTest, AFailedFlushIsLoggedAndMadeGoodByTheNext) {
    book("firefox", monday, red, 2);
    world.files.failWrite(1);
    world.log.expectWarning("Tidewatch: failed to flush project time store: ");
    store.flush();
    EXPECT_EQ(world.files.content(world.projectTimeJson), std::nullopt);
    store.flush();
    const ProjectTimeStore next(world.files, world.log, world.frontmost);
    EXPECT_EQ(next.taggedSeconds(monday), Seconds(2));
}

// The tick with projects.
struct ProjectBookingTest : testing::Test {
    test::FakeWorld world;
    Broadcaster broadcaster;
    ProjectStore projects{world.files, world.log, world.randomness, broadcaster};
    ProjectTimeStore times{world.files, world.log, world.frontmost};
    ActiveProjectBooking booking{projects, times};

    struct Gate final : GameGateListener {
        bool playing = false;
        [[nodiscard]] bool playingNow() const override { return playing; }
        void tickWorkSecond() override {}
        void flush() override {}
    } gate;
    test::CoreFixture fixture{world, {&gate, nullptr, &booking}};

    ProjectBookingTest() {
        world.putAppInFront("firefox");
        fixture.engine.start();
    }
    void tick(int seconds) { world.mainLoop.runFor(std::chrono::seconds(seconds)); }
    Uuid startProject(const char* name) {
        const auto id = projects.addProject(name).id;
        projects.setActive(id);
        return id;
    }
};

TEST_F(ProjectBookingTest, WithNoActiveProjectNothingReachesTheStore) {
    tick(5);
    EXPECT_EQ(times.taggedSeconds(today), Seconds(0));
    times.flush();
    EXPECT_EQ(world.files.content(world.projectTimeJson), "{\n\n}");
}

TEST_F(ProjectBookingTest, EachActiveSecondGoesToTheProjectOfThatMoment) {
    const auto one = startProject("Uno");
    tick(3);
    const auto two = startProject("Dos");
    tick(2);
    projects.setActive(std::nullopt);
    tick(10);
    EXPECT_EQ(times.totalSeconds(std::vector{today}, one), Seconds(3));
    EXPECT_EQ(times.totalSeconds(std::vector{today}, two), Seconds(2));
}

TEST_F(ProjectBookingTest, AResetOfTheDayLeavesTheProjectsTime) {
    const auto one = startProject("Uno");
    tick(3);
    fixture.engine.resetToday();
    tick(1);
    EXPECT_EQ(fixture.engine.todaySeconds(), Seconds(1));
    EXPECT_EQ(times.totalSeconds(std::vector{today}, one), Seconds(4));
}

TEST_F(ProjectBookingTest, IdleSecondsGoToNoProject) {
    startProject("Uno");
    world.inputActivity.set(1000);
    tick(3);
    EXPECT_EQ(times.taggedSeconds(today), Seconds(0));
}

TEST_F(ProjectBookingTest, AfterTheActiveProjectIsArchivedSecondsGoToNoProject) {
    const auto one = startProject("Uno");
    tick(3);
    projects.setArchived(ProjectStore::Archived::yes, one);
    tick(3);
    EXPECT_EQ(times.taggedSeconds(today), Seconds(3));
}

TEST_F(ProjectBookingTest, DeletingAProjectLeavesTheSumOfTheDayUnchanged) {
    const auto one = startProject("Uno");
    tick(3);
    startProject("Dos");
    tick(4);
    projects.deleteProject(one);
    EXPECT_EQ(times.taggedSeconds(today), Seconds(7));
    EXPECT_EQ(times.totalSeconds(std::vector{today}, one), Seconds(3));
}

TEST_F(ProjectBookingTest, APlayedSecondIsBookedToTheProjectAsTheApplicationInFront) {
    const auto one = startProject("Uno");
    gate.playing = true;
    tick(2);
    world.putAppInFront("com.brightlooms.tidewatch");
    tick(5);
    EXPECT_THAT(times.aggregate(std::vector{today}, one),
                ElementsAre(AppSeconds{AppId("firefox"), Seconds(2)}));
    EXPECT_THAT(fixture.apps.aggregate(std::vector{today}),
                ElementsAre(AppSeconds{AppId("com.brightlooms.fathom.games"), Seconds(7)}));
}

TEST_F(ProjectBookingTest, AnIdThatIsInNoListIsBookedToo) {
    projects.setActive(red);
    tick(2);
    EXPECT_EQ(times.totalSeconds(std::vector{today}, red), Seconds(2));
}

TEST_F(ProjectBookingTest, TheFlushOfTheTickWritesTheFileLastOfAll) {
    startProject("Uno");
    const auto before = world.files.writes().size();
    tick(30);
    const auto writes = world.files.writes();
    const std::vector<std::string> flushed(writes.begin() + static_cast<std::ptrdiff_t>(before),
                                           writes.end());
    EXPECT_THAT(flushed, ElementsAre(world.todayJson, world.appsJson, world.hoursJson, world.minutesJson,
                                     world.projectTimeJson));
}

TEST_F(ProjectBookingTest, ProjectsAreBookedUnderTheEnginesDay) {
    world.clock.setNow(std::chrono::sys_days(std::chrono::January / 15 / 2026) + std::chrono::hours(24) -
                       std::chrono::seconds(3));
    const auto one = startProject("Uno");
    tick(4);
    EXPECT_EQ(times.totalSeconds(std::vector{today}, one), Seconds(2));
    EXPECT_EQ(times.totalSeconds(std::vector{DayKey("2026-01-16")}, one), Seconds(2));
}

}  // namespace
}  // namespace tidewatch
