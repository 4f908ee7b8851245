#include "core/app_usage_store.h"

#include <gmock/gmock.h>

#include "tests/support/fake_world.h"

namespace tidewatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

const DayKey monday("2026-01-12");
const DayKey tuesday("2026-01-13");
const AppId firefox("firefox");
const AppId xterm("xterm");

struct AppUsageStoreTest : testing::Test {
    test::FakeWorld world;
    AppUsageStore store{world.files, world.log, world.frontmost};

    void book(const AppId& app, const DayKey& day, int seconds) {
        for (int i = 0; i < seconds; ++i) store.incrementApp(app, day);
    }
    [[nodiscard]] std::vector<AppSeconds> sums(std::vector<DayKey> days) const {
        return store.aggregate(days);
    }
};

TEST_F(AppUsageStoreTest, AggregateOfNoDaysOrOnlyUnknownOnesIsEmpty) {
    book(firefox, monday, 1);
    EXPECT_THAT(sums({}), IsEmpty());
    EXPECT_THAT(sums({tuesday, DayKey("never")}), IsEmpty());
}

TEST_F(AppUsageStoreTest, AggregateSumsOverTheDaysMostSecondsFirst) {
    book(firefox, monday, 2);
    book(firefox, tuesday, 1);
    book(xterm, tuesday, 5);
    EXPECT_THAT(sums({monday, tuesday}),
                ElementsAre(AppSeconds{xterm, Seconds(5)}, AppSeconds{firefox, Seconds(3)}));
    EXPECT_THAT(sums({monday}), ElementsAre(AppSeconds{firefox, Seconds(2)}));
}

TEST_F(AppUsageStoreTest, ADayGivenTwiceCountsTwice) {
    book(firefox, monday, 2);
    EXPECT_THAT(sums({monday, monday}), ElementsAre(AppSeconds{firefox, Seconds(4)}));
}

TEST_F(AppUsageStoreTest, EqualSecondsAllAppear) {
    book(firefox, monday, 2);
    book(xterm, monday, 2);
    EXPECT_THAT(sums({monday}),
                UnorderedElementsAre(AppSeconds{firefox, Seconds(2)}, AppSeconds{xterm, Seconds(2)}));
}

TEST_F(AppUsageStoreTest, AnApplicationWithAStoredZeroAppears) {
    world.files.put(world.appsJson, R"({"2026-01-12":{"xterm":0}})");
    const AppUsageStore other(world.files, world.log, world.frontmost);
    EXPECT_THAT(other.aggregate(std::vector{monday}), ElementsAre(AppSeconds{xterm, Seconds(0)}));
}

TEST_F(AppUsageStoreTest, IncrementCurrentAppBooksTheApplicationInFront) {
    world.putAppInFront("xterm");
    store.incrementCurrentApp(monday);
    world.putAppInFront("firefox");
    store.incrementCurrentApp(monday);
    store.incrementCurrentApp(monday);
    EXPECT_THAT(sums({monday}), ElementsAre(AppSeconds{firefox, Seconds(2)}, AppSeconds{xterm, Seconds(1)}));
}

TEST_F(AppUsageStoreTest, NothingInFrontBooksNothing) {
    store.incrementCurrentApp(monday);
    EXPECT_THAT(store.allDayKeys(), IsEmpty());
}

TEST_F(AppUsageStoreTest, AnApplicationWithoutAnIdentifierIsNeverBooked) {
    world.putAppInFront("");
    store.incrementCurrentApp(monday);
    EXPECT_THAT(store.allDayKeys(), IsEmpty());
}

TEST_F(AppUsageStoreTest, TheProgramsOwnIdentifierIsAcceptedByIncrementAppOnly) {
    world.putAppInFront("com.brightlooms.tidewatch");
    store.incrementCurrentApp(monday);
    EXPECT_THAT(store.allDayKeys(), IsEmpty());
    store.incrementApp(AppId("com.brightlooms.tidewatch"), monday);
    EXPECT_THAT(sums({monday}), ElementsAre(AppSeconds{AppId("com.brightlooms.tidewatch"), Seconds(1)}));
}

TEST_F(AppUsageStoreTest, AllDayKeysAreSorted) {
    book(xterm, tuesday, 1);
    book(xterm, monday, 1);
    book(xterm, DayKey("2025-12-31"), 1);
    EXPECT_THAT(store.allDayKeys(), ElementsAre(DayKey("2025-12-31"), monday, tuesday));
}

TEST_F(AppUsageStoreTest, TheFileIsWrittenInTheExactFormatAndReadBack) {
    book(xterm, monday, 2);
    book(AppId("org/gnome"), monday, 1);
    store.flush();
    EXPECT_EQ(store.dataFilePath(), world.appsJson);
    EXPECT_EQ(world.files.content(world.appsJson), R"({
  "2026-01-12" : {
    "org\/gnome" : 1,
    "xterm" : 2
  }
})");
    const AppUsageStore next(world.files, world.log, world.frontmost);
    EXPECT_EQ(next.aggregate(std::vector{monday}), sums({monday}));
}

TEST_F(AppUsageStoreTest, AnIdentifierThatIsNoTextDoesNotCostTheFile) {
    store.incrementApp(AppId("caf\xE9"), monday);
    store.incrementApp(AppId("caf\xE9"), monday);
    book(xterm, monday, 1);
    store.flush();
    const AppUsageStore next(world.files, world.log, world.frontmost);
    EXPECT_THAT(next.aggregate(std::vector{monday}),
                ElementsAre(AppSeconds{AppId("caf\uFFFD"), Seconds(2)}, AppSeconds{xterm, Seconds(1)}));
}

TEST_F(AppUsageStoreTest, AFailedFlushIsLoggedInItsOwnWords) {
    book(xterm, monday, 1);
    world.files.setDisk(platform::MemoryFileSystem::Disk::full);
    world.log.expectWarning("Tidewatch: failed to flush app usage store: write: No space left on device");
    store.flush();
    EXPECT_THAT(sums({monday}), ElementsAre(AppSeconds{xterm, Seconds(1)}));
}

}  // namespace
}  // namespace tidewatch
