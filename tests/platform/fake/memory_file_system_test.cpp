#include "platform/fake/memory_file_system.h"

#include <gtest/gtest.h>

namespace tidewatch::platform {
namespace {

TEST(MemoryFileSystem, KeepsWhatIsWritten) {
    MemoryFileSystem files;
    ASSERT_TRUE(files.createDirectories("/home/user/a/b"));
    EXPECT_TRUE(files.hasDirectory("/home/user/a"));
    ASSERT_TRUE(files.replaceAtomically("/home/user/a/b/f", "one"));
    ASSERT_TRUE(files.replaceAtomically("/home/user/a/b/f", "two"));
    EXPECT_EQ(files.readWhole("/home/user/a/b/f").value(), "two");
    EXPECT_EQ(files.writes().size(), 2u);
}

TEST(MemoryFileSystem, FailsAtTheWriteThatWasChosenAndKeepsTheFile) {
    MemoryFileSystem files;
    files.put("/d/f", "old");
    files.failWrite(2);
    EXPECT_TRUE(files.replaceAtomically("/d/f", "first"));
    EXPECT_FALSE(files.replaceAtomically("/d/f", "second"));
    EXPECT_EQ(files.content("/d/f"), "first");
    EXPECT_TRUE(files.replaceAtomically("/d/f", "third"));
}

TEST(MemoryFileSystem, AFullDiskTakesNothingUntilThereIsRoom) {
    MemoryFileSystem files;
    files.put("/d/f", "old");
    files.setDisk(MemoryFileSystem::Disk::full);
    EXPECT_FALSE(files.replaceAtomically("/d/f", "new"));
    EXPECT_EQ(files.content("/d/f"), "old");
    files.setDisk(MemoryFileSystem::Disk::roomy);
    EXPECT_TRUE(files.replaceAtomically("/d/f", "new"));
}

TEST(MemoryFileSystem, AnUnmakeableDirectoryTakesNoFile) {
    MemoryFileSystem files;
    files.makeUnmakeable("/home/user/.tidewatch");
    EXPECT_FALSE(files.createDirectories("/home/user/.tidewatch/deeper"));
    EXPECT_FALSE(files.replaceAtomically("/home/user/.tidewatch/f", "x"));
}

TEST(MemoryFileSystem, MissingAndUnreadableFilesAreErrors) {
    MemoryFileSystem files;
    EXPECT_FALSE(files.readWhole("/none"));
    files.put("/d/f", "secret");
    files.makeUnreadable("/d/f");
    EXPECT_FALSE(files.readWhole("/d/f"));
}

TEST(MemoryFileSystem, SetsAFileAsideUnderANameThatIsFree) {
    MemoryFileSystem files;
    EXPECT_EQ(files.setAside("/d/f", "damaged").value(), std::nullopt);
    files.put("/d/f", "");
    EXPECT_EQ(files.setAside("/d/f", "damaged").value(), std::nullopt);
    files.put("/d/f", "one");
    EXPECT_EQ(files.setAside("/d/f", "damaged").value(), "/d/f.damaged-2026-01-15");
    files.setDay("2026-01-16");
    files.put("/d/f", "two");
    EXPECT_EQ(files.setAside("/d/f", "damaged").value(), "/d/f.damaged-2026-01-16");
    files.put("/d/f", "three");
    EXPECT_EQ(files.setAside("/d/f", "damaged").value(), "/d/f.damaged-2026-01-16-2");
    EXPECT_EQ(files.content("/d/f"), std::nullopt);
    EXPECT_EQ(files.content("/d/f.damaged-2026-01-15"), "one");
}

TEST(MemoryFileSystem, TellsExportsFromTheRecord) {
    MemoryFileSystem files;
    files.put("/d/f", "old");
    EXPECT_FALSE(files.exportFile("/d/f", "new"));
    EXPECT_EQ(files.exports(), std::vector<std::string>{"/d/f"});
    files.setDisk(MemoryFileSystem::Disk::full);
    EXPECT_EQ(files.exportFile("/d/f", "newer").value().fault, ExportFault::noSpace);
    EXPECT_EQ(files.content("/d/f"), "new");
}

TEST(MemoryFileSystem, TruncatesAFile) {
    MemoryFileSystem files;
    files.put("/d/f", "abcdef");
    files.truncate("/d/f", 2);
    EXPECT_EQ(files.content("/d/f"), "ab");
}

TEST(MemoryFileSystem, TellsAFileFromTheOneThatReplacedIt) {
    MemoryFileSystem files;
    files.put("/home/user/a", "12345");
    const auto first = files.inspect("/home/user/a").value();
    EXPECT_EQ(first.kind, FileKind::file);
    EXPECT_EQ(first.size, 5u);
    EXPECT_EQ(files.inspect("/home/user/a").value(), first);
    files.touch("/home/user/a");
    const auto touched = files.inspect("/home/user/a").value();
    EXPECT_EQ(touched.identity, first.identity);
    EXPECT_NE(touched.modified, first.modified);
    files.put("/home/user/a", "12345");
    EXPECT_NE(files.inspect("/home/user/a").value().identity, first.identity);
    EXPECT_EQ(files.inspect("/home/user").value().kind, FileKind::directory);
    EXPECT_FALSE(files.inspect("/home/user/b"));
}

}  // namespace
}  // namespace tidewatch::platform
