#include "core/restorable_file.h"

#include <gmock/gmock.h>

#include "tests/support/fake_world.h"

namespace tidewatch {
namespace {

using testing::IsEmpty;

constexpr auto directory = "/home/user/.tidewatch";
constexpr auto path = "/home/user/.tidewatch/notes.json";

std::optional<std::string> markedText(std::string text) {
    return text.starts_with("notes") ? std::optional(std::move(text)) : std::nullopt;
}

struct RestorableFileTest : testing::Test {
    test::FakeWorld world;
    std::unique_ptr<JobQueue> queue = world.queues.makeQueue("record");
    RestorableFile file{world.files, world.log, "notes.json", "Tidewatch: failed to keep notes: "};

    [[nodiscard]] std::optional<std::string> onDisk() const { return world.files.content(path); }
    void load() { static_cast<void>(file.read(markedText)); }
};

TEST_F(RestorableFileTest, WhatWasWrittenComesBackWithItsDirectory) {
    load();
    EXPECT_TRUE(file.write("notes 1"));
    EXPECT_TRUE(file.write("notes 2"));
    world.files.removeDirectory(directory);
    file.restoreOn(*queue);
    EXPECT_EQ(onDisk(), "notes 2");
    EXPECT_THAT(world.log.infos(), IsEmpty());
}

TEST_F(RestorableFileTest, WhatWasReadComesBackAsItStood) {
    world.files.put(path, "notes of\n  an earlier run");
    EXPECT_EQ(file.read(markedText), "notes of\n  an earlier run");
    world.files.removeDirectory(directory);
    file.restoreOn(*queue);
    EXPECT_EQ(onDisk(), "notes of\n  an earlier run");
}

TEST_F(RestorableFileTest, AFileThatIsThereIsLeftAloneWhateverItHolds) {
    load();
    EXPECT_TRUE(file.write("notes"));
    world.files.put(path, "edited by hand");
    file.restoreOn(*queue);
    EXPECT_EQ(onDisk(), "edited by hand");
    EXPECT_EQ(world.files.writeCount(), 1);
}

TEST_F(RestorableFileTest, AFileThatMayNotBeReadIsNotMissing) {
    load();
    EXPECT_TRUE(file.write("notes"));
    world.files.put(path, "for other eyes");
    world.files.makeUnreadable(path);
    file.restoreOn(*queue);
    EXPECT_EQ(onDisk(), "for other eyes");
}

TEST_F(RestorableFileTest, AFileThatNeverWasIsNotMade) {
    load();
    world.files.removeDirectory(directory);
    file.restoreOn(*queue);
    EXPECT_EQ(onDisk(), std::nullopt);
    EXPECT_FALSE(world.files.hasDirectory(directory));
}

TEST_F(RestorableFileTest, ADamagedFileThatIsRemovedStaysAway) {
    world.files.put(path, "garbage");
    load();
    world.files.removeDirectory(directory);
    file.restoreOn(*queue);
    EXPECT_EQ(onDisk(), std::nullopt);
}

TEST_F(RestorableFileTest, AChangeThatCouldNotBeWrittenComesDownIfThereIsNoFile) {
    load();
    world.files.failWrite(1);
    world.log.expectWarning("Tidewatch: failed to keep notes: write: Input/output error");
    EXPECT_FALSE(file.write("notes"));
    file.restoreOn(*queue);
    EXPECT_EQ(onDisk(), "notes");
}

TEST_F(RestorableFileTest, TheTextIsThatOfTheMomentAtWhichItIsRestored) {
    load();
    EXPECT_TRUE(file.write("notes 1"));
    world.files.removeDirectory(directory);
    world.queues.hold();
    file.restoreOn(*queue);
    EXPECT_EQ(onDisk(), std::nullopt);
    EXPECT_TRUE(file.write("notes 2"));
    queue->finish();
    EXPECT_EQ(onDisk(), "notes 2");
}

TEST_F(RestorableFileTest, NothingIsRestoredWhileAnotherProcessHasTheDirectory) {
    load();
    EXPECT_TRUE(file.write("notes"));
    world.files.removeDirectory(directory);
    world.files.setRecordLock(platform::RecordLock::heldByAnother);
    file.restoreOn(*queue);
    EXPECT_EQ(onDisk(), std::nullopt);
    world.files.setRecordLock(platform::RecordLock::held);
    file.restoreOn(*queue);
    EXPECT_EQ(onDisk(), "notes");
}

}  // namespace
}  // namespace tidewatch
