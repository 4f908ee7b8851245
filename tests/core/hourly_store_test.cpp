#include "core/hourly_store.h"

#include <gmock/gmock.h>

#include <string>

#include "tests/support/fake_world.h"

namespace tidewatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const HourKey nine("2026-01-15 09");
const HourKey ten("2026-01-15 10");
const AppId firefox("firefox");
const AppId xterm("xterm");

struct HourlyStoreTest : testing::Test {
    test::FakeWorld world;
    HourlyStore store{world.files, world.log, world.frontmost};
};

TEST_F(HourlyStoreTest, AnUnknownHourHasNoEntriesAndNoSeconds) {
    EXPECT_THAT(store.entries(nine), IsEmpty());
    EXPECT_EQ(store.seconds(nine), Seconds(0));
    store.flush();
    EXPECT_EQ(world.files.content(world.hoursJson), "{\n\n}");
}

TEST_F(HourlyStoreTest, SecondsAreTheSumOfTheHoursEntries) {
    store.incrementApp(xterm, nine);
    store.incrementApp(firefox, nine);
    store.incrementApp(xterm, nine);
    store.incrementApp(xterm, ten);
    EXPECT_THAT(store.entries(nine),
                ElementsAre(AppSeconds{firefox, Seconds(1)}, AppSeconds{xterm, Seconds(2)}));
    EXPECT_EQ(store.seconds(nine), Seconds(3));
    EXPECT_EQ(store.seconds(ten), Seconds(1));
}

TEST_F(HourlyStoreTest, TheApplicationInFrontIsBookedByTheSameRuleAsForDays) {
    store.incrementCurrentApp(nine);
    world.putAppInFront("");
    store.incrementCurrentApp(nine);
    world.putAppInFront("com.brightlooms.tidewatch");
    store.incrementCurrentApp(nine);
    EXPECT_THAT(store.entries(nine), IsEmpty());
    world.putAppInFront("xterm");
    store.incrementCurrentApp(nine);
    EXPECT_THAT(store.entries(nine), ElementsAre(AppSeconds{xterm, Seconds(1)}));
}

TEST_F(HourlyStoreTest, AGivenIdentifierIsBookedWhicheverItIs) {
    const AppId own("com.brightlooms.tidewatch");
    store.incrementApp(own, nine);
    EXPECT_THAT(store.entries(nine), ElementsAre(AppSeconds{own, Seconds(1)}));
}

TEST_F(HourlyStoreTest, TheFileHoldsHoursAndApplicationsInOrder) {
    store.incrementApp(xterm, ten);
    store.incrementApp(xterm, nine);
    store.incrementApp(firefox, nine);
    EXPECT_EQ(world.files.content(world.hoursJson), std::nullopt);
    store.flush();
    EXPECT_EQ(world.files.content(world.hoursJson),
              "{\n"
              "  \"2026-01-15 09\" : {\n"
              "    \"firefox\" : 1,\n"
              "    \"xterm\" : 1\n"
              "  },\n"
              "  \"2026-01-15 10\" : {\n"
              "    \"xterm\" : 1\n"
              "  }\n"
              "}");
    EXPECT_EQ(store.dataFilePath(), world.hoursJson);
}

TEST_F(HourlyStoreTest, TheNextStartContinuesFromTheFile) {
    store.incrementApp(xterm, nine);
    store.flush();
    HourlyStore next(world.files, world.log, world.frontmost);
    next.incrementApp(xterm, nine);
    EXPECT_EQ(next.seconds(nine), Seconds(2));
    EXPECT_EQ(store.seconds(nine), Seconds(1));
}

TEST_F(HourlyStoreTest, ASnapshotHoldsEverythingInOrderAndStandsStill) {
    store.incrementApp(xterm, ten);
    store.incrementApp(xterm, nine);
    store.incrementApp(firefox, nine);
    const auto snapshot = store.snapshot();
    store.incrementApp(xterm, nine);
    store.incrementApp(AppId("gimp"), HourKey("2026-01-15 08"));

    std::vector<std::string> seen;
    UsageSnapshot::Reader reader(snapshot);
    for (UsageSnapshot::Index key = 0; key < snapshot.keyCount(); ++key) {
        reader.forEachApp(key, [&](std::uint32_t app, Seconds seconds) {
            ASSERT_LT(app, snapshot.appCount());
            seen.push_back(std::string(snapshot.key(key)) + " " + std::string(snapshot.app(app)) + " " +
                           std::to_string(seconds.count()));
        });
    }
    EXPECT_THAT(seen,
                ElementsAre("2026-01-15 09 firefox 1", "2026-01-15 09 xterm 1", "2026-01-15 10 xterm 1"));
    EXPECT_EQ(snapshot.appCount(), 2u);
}

TEST_F(HourlyStoreTest, ASnapshotOutlivesTheStore) {
    auto brief = std::make_optional<HourlyStore>(world.files, world.log, world.frontmost);
    brief->incrementApp(xterm, nine);
    const auto snapshot = brief->snapshot();
    brief.reset();
    ASSERT_EQ(snapshot.keyCount(), 1u);
    EXPECT_EQ(snapshot.key(0), nine.text());
    EXPECT_EQ(snapshot.app(0), xterm.text());
}

TEST_F(HourlyStoreTest, MalformedKeysAreKept) {
    world.files.put(world.hoursJson, R"({"yesterday":{"xterm":5},"2026-01-15 09":{},"":{"":-1}})");
    HourlyStore odd(world.files, world.log, world.frontmost);
    EXPECT_EQ(odd.snapshot().keyCount(), 3u);
    EXPECT_EQ(odd.seconds(HourKey("yesterday")), Seconds(5));
    EXPECT_EQ(odd.seconds(HourKey("")), Seconds(-1));
    odd.flush();
    EXPECT_EQ(world.files.content(world.hoursJson),
              "{\n"
              "  \"\" : {\n"
              "    \"\" : -1\n"
              "  },\n"
              "  \"2026-01-15 09\" : {\n"
              "\n"
              "  },\n"
              "  \"yesterday\" : {\n"
              "    \"xterm\" : 5\n"
              "  }\n"
              "}");
}

}  // namespace
}  // namespace tidewatch
