#include "core/record_file.h"

#include <gmock/gmock.h>

#include "tests/support/core_fixture.h"

namespace tidewatch {
namespace {

using platform::RecordLock;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr auto path = "/home/user/.tidewatch/notes.json";
constexpr auto damaged = "/home/user/.tidewatch/notes.json.damaged-2026-01-15";
constexpr auto others = "/home/user/.tidewatch/notes.json.other-2026-01-15";

std::optional<std::string> goodText(std::string text) {
    return text.starts_with("good") ? std::optional(std::move(text)) : std::nullopt;
}

struct RecordFileTest : testing::Test {
    test::FakeWorld world;
    RecordFile file{world.files, world.log, "notes.json", "Tidewatch: failed to keep notes: "};

    [[nodiscard]] std::optional<std::string> content(const std::string& at) const {
        return world.files.content(at);
    }
};

TEST_F(RecordFileTest, AFileThatWasReadIsReplaced) {
    world.files.put(path, "good day");
    EXPECT_EQ(file.read(goodText), "good day");
    EXPECT_TRUE(file.write("good night"));
    EXPECT_EQ(content(path), "good night");
    EXPECT_EQ(content(damaged), std::nullopt);
    EXPECT_THAT(world.log.infos(), IsEmpty());
}

TEST_F(RecordFileTest, AMissingFileIsCreatedSilently) {
    EXPECT_EQ(file.read(goodText), std::nullopt);
    EXPECT_TRUE(file.write("good"));
    EXPECT_EQ(content(path), "good");
    EXPECT_THAT(world.log.infos(), IsEmpty());
}

TEST_F(RecordFileTest, ADamagedFileIsSetAsideOnceBeforeTheFirstWriteAndALineSaysSo) {
    world.files.put(path, "garbage");
    EXPECT_EQ(file.read(goodText), std::nullopt);
    EXPECT_EQ(content(path), "garbage") << "reading alone leaves it";
    EXPECT_THAT(world.log.infos(), IsEmpty());
    EXPECT_TRUE(file.write("good 1"));
    EXPECT_TRUE(file.write("good 2"));
    EXPECT_EQ(content(path), "good 2");
    EXPECT_EQ(content(damaged), "garbage");
    EXPECT_THAT(world.log.infos(), ElementsAre(std::string("Tidewatch: ") + path +
                                               " could not be read; it is kept as " + damaged));
}

TEST_F(RecordFileTest, AnUnreadableFileIsSetAsideToo) {
    world.files.put(path, "good but not for us");
    world.files.makeUnreadable(path);
    EXPECT_EQ(file.read(goodText), std::nullopt);
    EXPECT_TRUE(file.write("good"));
    EXPECT_EQ(content(damaged), "good but not for us");
}

TEST_F(RecordFileTest, AnEmptyFileIsNotKept) {
    world.files.put(path, "");
    EXPECT_EQ(file.read(goodText), std::nullopt);
    EXPECT_TRUE(file.write("good"));
    EXPECT_EQ(content(damaged), std::nullopt);
    EXPECT_THAT(world.log.infos(), IsEmpty());
}

TEST_F(RecordFileTest, ASecondDamagedFileOfADayIsKeptBesideTheFirst) {
    world.files.put(damaged, "garbage of this morning");
    world.files.put(path, "garbage");
    EXPECT_EQ(file.read(goodText), std::nullopt);
    EXPECT_TRUE(file.write("good"));
    EXPECT_EQ(content(damaged), "garbage of this morning");
    EXPECT_EQ(content(std::string(damaged) + "-2"), "garbage");
}

TEST_F(RecordFileTest, AFailedWriteIsLoggedAndLosesNoDamagedFile) {
    world.files.put(path, "garbage");
    EXPECT_EQ(file.read(goodText), std::nullopt);
    world.files.failWrite(1);
    world.log.expectWarning("Tidewatch: failed to keep notes: write: Input/output error");
    EXPECT_FALSE(file.write("good"));
    EXPECT_EQ(content(damaged), "garbage");
    EXPECT_TRUE(file.write("good"));
    EXPECT_EQ(content(path), "good");
    EXPECT_EQ(world.log.infos().size(), 1u);
}

TEST_F(RecordFileTest, WithoutAMessageAFailureIsSilent) {
    RecordFile silent(world.files, world.log, "notes.json");
    world.files.failWrite(1);
    EXPECT_FALSE(silent.write("good"));
}

TEST_F(RecordFileTest, ADirectoryThatWasRemovedIsMadeAgain) {
    EXPECT_EQ(file.read(goodText), std::nullopt);
    EXPECT_TRUE(file.write("good 1"));
    world.files.removeDirectory("/home/user/.tidewatch");
    EXPECT_TRUE(file.write("good 2"));
    EXPECT_EQ(content(path), "good 2");
}

TEST_F(RecordFileTest, WhileAnotherProcessHasTheDirectoryNothingIsWrittenAndNothingSaid) {
    world.files.put(path, "good of both");
    EXPECT_EQ(file.read(goodText), "good of both");
    world.files.setRecordLock(RecordLock::heldByAnother);
    EXPECT_FALSE(file.write("good of ours"));
    EXPECT_EQ(content(path), "good of both");
    EXPECT_THAT(world.log.infos(), IsEmpty());
}

TEST_F(RecordFileTest, WhatAnotherProcessWroteIsSetAsideWhenTheDirectoryIsOursAgain) {
    world.files.put(path, "good of both");
    EXPECT_EQ(file.read(goodText), "good of both");
    world.files.setRecordLock(RecordLock::heldByAnother);
    EXPECT_FALSE(file.write("good of ours"));
    world.files.put(path, "good of theirs");
    world.files.setRecordLock(RecordLock::held);
    EXPECT_TRUE(file.write("good of ours"));
    EXPECT_EQ(content(path), "good of ours");
    EXPECT_EQ(content(others), "good of theirs");
    EXPECT_THAT(world.log.infos(), ElementsAre(HasSubstr(others)));
}

TEST(DamagedRecord, EachCounterStoreSetsItsOwnFileAside) {
    test::FakeWorld world;
    const std::vector files{world.todayJson, world.appsJson, world.hoursJson, world.minutesJson};
    for (const auto& file : files) world.files.put(file, "garbage of " + file);
    test::CoreFixture fixture(world);
    fixture.engine.stop();
    for (const auto& file : files) {
        EXPECT_EQ(world.files.content(file + ".damaged-2026-01-15"), "garbage of " + file);
    }
    EXPECT_EQ(world.log.infos().size(), files.size());
}

TEST(DamagedRecord, AStoreWithoutADirectoryMakesOneAtTheNextFlush) {
    test::FakeWorld world;
    test::CoreFixture fixture(world);
    fixture.engine.stop();
    world.files.removeDirectory("/home/user/.tidewatch");
    fixture.engine.stop();
    EXPECT_NE(world.files.content(world.todayJson), std::nullopt);
    EXPECT_NE(world.files.content(world.minutesJson), std::nullopt);
}

TEST(DamagedRecord, ANumberThatIsNoCounterEndsNeitherStartNorSums) {
    for (const auto* number : {"9223372036854775807", "-9223372036854775808", "2147483648", "1e18"}) {
        test::FakeWorld world;
        world.putAppInFront("xterm");
        const auto n = std::string(number);
        world.files.put(world.todayJson, "{\"2026-01-10\":" + n + ",\"2026-01-15\":" + n + "}");
        world.files.put(world.appsJson,
                        "{\"2026-01-15\":{\"a\":" + n + ",\"b\":" + n + ",\"xterm\":" + n + "}}");
        world.files.put(world.hoursJson, "{\"2026-01-15 09\":{\"a\":" + n + ",\"xterm\":" + n + "}}");
        test::CoreFixture fixture(world);
        fixture.engine.start();
        world.mainLoop.runFor(std::chrono::seconds(2));
        EXPECT_EQ(fixture.engine.todaySeconds(), Seconds(2)) << number;
        EXPECT_EQ(fixture.hours.seconds(HourKey("2026-01-15 09")), Seconds(2)) << number;
        EXPECT_EQ(fixture.apps.aggregate(std::vector{DayKey("2026-01-15")}).size(), 1u) << number;
    }
}

}  // namespace
}  // namespace tidewatch
