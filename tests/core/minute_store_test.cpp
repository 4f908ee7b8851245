#include "core/minute_store.h"

#include <gmock/gmock.h>

#include "core/clock_keys.h"
#include "tests/support/fake_world.h"

namespace tidewatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const BucketKey nine("2026-01-15 09:00");
const BucketKey tenPast("2026-01-15 09:10");
const AppId xterm("xterm");

struct MinuteStoreTest : testing::Test {
    test::FakeWorld world;
    MinuteStore store{world.files, world.log, world.frontmost};
};

TEST_F(MinuteStoreTest, ABucketIsTenMinutes) {
    EXPECT_EQ(bucketSize, Seconds(600));
}

TEST_F(MinuteStoreTest, AnUnknownBucketHasNoEntries) {
    EXPECT_THAT(store.entries(nine), IsEmpty());
    store.flush();
    EXPECT_EQ(world.files.content(world.minutesJson), "{\n\n}");
}

TEST_F(MinuteStoreTest, TheApplicationInFrontIsBookedByTheSameRuleAsForDays) {
    store.incrementCurrentApp(nine);
    world.putAppInFront("com.brightlooms.tidewatch");
    store.incrementCurrentApp(nine);
    EXPECT_THAT(store.entries(nine), IsEmpty());
    world.putAppInFront("xterm");
    store.incrementCurrentApp(nine);
    store.incrementApp(xterm, nine);
    EXPECT_THAT(store.entries(nine), ElementsAre(AppSeconds{xterm, Seconds(2)}));
}

TEST_F(MinuteStoreTest, TheFileHoldsBucketsAndApplicationsInOrder) {
    store.incrementApp(xterm, tenPast);
    store.incrementApp(xterm, nine);
    store.incrementApp(AppId("firefox"), nine);
    store.flush();
    EXPECT_EQ(world.files.content(world.minutesJson),
              "{\n"
              "  \"2026-01-15 09:00\" : {\n"
              "    \"firefox\" : 1,\n"
              "    \"xterm\" : 1\n"
              "  },\n"
              "  \"2026-01-15 09:10\" : {\n"
              "    \"xterm\" : 1\n"
              "  }\n"
              "}");
    EXPECT_EQ(store.dataFilePath(), world.minutesJson);
}

TEST_F(MinuteStoreTest, TheNextStartContinuesFromTheFile) {
    store.incrementApp(xterm, nine);
    store.flush();
    MinuteStore next(world.files, world.log, world.frontmost);
    next.incrementApp(xterm, nine);
    EXPECT_THAT(next.entries(nine), ElementsAre(AppSeconds{xterm, Seconds(2)}));
}

TEST_F(MinuteStoreTest, ASnapshotIsACopy) {
    store.incrementApp(xterm, nine);
    const auto snapshot = store.snapshot();
    store.incrementApp(xterm, tenPast);
    EXPECT_EQ(snapshot.keyCount(), 1u);
    EXPECT_EQ(store.snapshot().keyCount(), 2u);
}

}  // namespace
}  // namespace tidewatch
