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
    EXPECT_EQ(files.readFile("/home/user/a/b/f").value(), "two");
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
    EXPECT_FALSE(files.readFile("/none"));
    files.put("/d/f", "secret");
    files.makeUnreadable("/d/f");
    EXPECT_FALSE(files.readFile("/d/f"));
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
    EXPECT_EQ(files.exportFile("/d/f", "newer").value().kind, ExportErrorKind::noSpace);
    EXPECT_EQ(files.content("/d/f"), "new");
}

TEST(MemoryFileSystem, TruncatesAFile) {
    MemoryFileSystem files;
    files.put("/d/f", "abcdef");
    files.truncate("/d/f", 2);
    EXPECT_EQ(files.content("/d/f"), "ab");
}

TEST(MemoryFileSystem, DistinguishesAFileFromItsReplacement) {
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

TEST(MemoryFileSystem, ReportsWhyAFileCannotBeRead) {
    MemoryFileSystem files;
    files.put("/d/f", "1");
    files.makeUnreadable("/d/f");
    EXPECT_EQ(files.readFile("/d/f").error().kind, FileErrorKind::permissionDenied);
    EXPECT_EQ(files.openForReading("/d/f", 0).error().kind, FileErrorKind::permissionDenied);
    EXPECT_EQ(files.readFile("/d/g").error().kind, FileErrorKind::notFound);
    EXPECT_EQ(files.inspect("/d/g").error().kind, FileErrorKind::notFound);
    EXPECT_EQ(files.openForReading("/d/g", 0).error().kind, FileErrorKind::notFound);
}

TEST(MemoryFileSystem, ReadsAFileInPieces) {
    MemoryFileSystem files;
    files.put("/d/f", "one two three");
    const auto reader = files.openForReading("/d/f", 4);
    ASSERT_TRUE(reader);
    std::string piece(6, '\0');
    EXPECT_EQ(reader.value()->read(piece).value(), 6u);
    EXPECT_EQ(piece, "two th");
    EXPECT_EQ(reader.value()->read(piece).value(), 3u);
    EXPECT_EQ(reader.value()->read(piece).value(), 0u);
    EXPECT_EQ(files.openForReading("/d/f", 100).value()->read(piece).value(), 0u);
}

TEST(MemoryFileSystem, EnumeratesWhatIsBelowADirectory) {
    MemoryFileSystem files;
    for (const auto* path : {"/d/a/b", "/d/a-c", "/d/.h/x", "/d/e/f", "/d/closed/g", "/dd/x"})
        files.put(path, "1");
    files.makeUnreadable("/d/closed");
    const auto find = [&](HiddenFiles hidden, const FileVisitor& visit) {
        std::vector<std::string> paths;
        EXPECT_TRUE(files.enumerate("/d", hidden, [&](const FoundFile& file) {
            EXPECT_EQ(file.info, files.inspect(std::string(file.path)).value());
            paths.emplace_back(file.path);
            return visit(file);
        }));
        return paths;
    };
    const auto enterAll = [](const FoundFile&) { return VisitAction::proceed; };
    using Paths = std::vector<std::string>;
    EXPECT_EQ(find(HiddenFiles::included, enterAll),
              (Paths{"/d/.h", "/d/.h/x", "/d/a", "/d/a-c", "/d/a/b", "/d/closed", "/d/e", "/d/e/f"}));
    EXPECT_EQ(find(HiddenFiles::skipped, enterAll),
              (Paths{"/d/a", "/d/a-c", "/d/a/b", "/d/closed", "/d/e", "/d/e/f"}));
    const auto passA = [](const FoundFile& file) {
        return file.path == "/d/a" ? VisitAction::skip : VisitAction::proceed;
    };
    EXPECT_EQ(find(HiddenFiles::skipped, passA), (Paths{"/d/a", "/d/a-c", "/d/closed", "/d/e", "/d/e/f"}));
    EXPECT_EQ(find(HiddenFiles::skipped, [](const FoundFile&) { return VisitAction::stop; }),
              (Paths{"/d/a"}));
    const auto removeE = [&](const FoundFile&) {
        files.removeDirectory("/d/e");
        return VisitAction::proceed;
    };
    EXPECT_EQ(find(HiddenFiles::skipped, removeE), (Paths{"/d/a", "/d/a-c", "/d/a/b", "/d/closed"}));
}

TEST(MemoryFileSystem, ADirectoryThatCannotBeEnumeratedReportsWhy) {
    MemoryFileSystem files;
    files.put("/d/f", "1");
    files.makeUnreadable("/d");
    const auto visit = [](const FoundFile&) { return VisitAction::proceed; };
    EXPECT_EQ(files.enumerate("/d", HiddenFiles::included, visit).error().kind,
              FileErrorKind::permissionDenied);
    EXPECT_EQ(files.enumerate("/none", HiddenFiles::included, visit).error().kind, FileErrorKind::notFound);
}

}  // namespace
}  // namespace tidewatch::platform
