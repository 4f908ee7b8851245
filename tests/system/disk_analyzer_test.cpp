#include "system/disk_analyzer.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <memory>
#include <set>

#include "platform/fake/fake_trash.h"
#include "platform/fake/fake_user_folders.h"
#include "system/disk_scan.h"
#include "tests/support/fake_world.h"

namespace tidewatch {
namespace {

using platform::FileTime;
using platform::UserFolder;
using std::chrono::days;
using std::chrono::nanoseconds;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::int64_t large = 52'428'800;

struct DiskAnalyzerTest : testing::Test {
    test::FakeWorld world;
    platform::FakeUserFolders folders;
    platform::FakeTrash trash;
    std::unique_ptr<DiskAnalyzer> analyzer = std::make_unique<DiskAnalyzer>(DiskAnalyzer::Dependencies{
        .clock = world.clock,
        .files = world.files,
        .folders = folders,
        .desktop = world.desktop,
        .trash = trash,
        .log = world.log,
        .randomness = world.randomness,
        .queues = world.queues,
    });
    const FileTime now = world.clock.now();
    const FileTime cutOff = now - days(120);

    const std::string downloads = "/home/user/Descargas";
    const std::string documents = "/home/user/Documentos";

    void addRoot(UserFolder folder, const std::string& path) {
        folders.paths[folder] = path;
        ASSERT_TRUE(world.files.createDirectories(path));
    }
    void SetUp() override { addRoot(UserFolder::downloads, downloads); }

    void put(const std::string& path, std::int64_t size, FileTime accessed,
             FileTime modified = FileTime(days(20'000))) {
        world.files.putSparse(path, static_cast<std::uint64_t>(size), accessed, modified);
    }

    const DiskScanResult& scan() {
        analyzer->scan();
        world.mainLoop.run();
        return analyzer->result();
    }

    std::vector<std::string> largeNames() {
        std::vector<std::string> names;
        for (const auto& file : scan().largeOld) names.push_back(file.name);
        return names;
    }
    std::vector<std::string> folderTexts() {
        std::vector<std::string> texts;
        for (const auto& folder : scan().topFolders)
            texts.push_back(fmt::format("{}={}", folder.path, folder.size));
        return texts;
    }
};

TEST_F(DiskAnalyzerTest, NothingIsScannedUntilSomebodyAsks) {
    put(downloads + "/a", 5, now);
    world.mainLoop.run();
    EXPECT_FALSE(analyzer->isScanning());
    EXPECT_EQ(analyzer->result().finishedAt, std::nullopt);
}

TEST_F(DiskAnalyzerTest, WithNoRootTheScanEndsAtOnceWithAnEmptyResult) {
    folders.paths = {{UserFolder::videos, "/home/user/absent"}};
    const auto& result = scan();
    EXPECT_FALSE(analyzer->isScanning());
    EXPECT_EQ(result.finishedAt, world.clock.now());
    EXPECT_THAT(result.scannedRoots, IsEmpty());
    EXPECT_THAT(result.topFolders, IsEmpty());
}

TEST_F(DiskAnalyzerTest, RootsAreScannedInTheirOrderEachOnce) {
    addRoot(UserFolder::videos, "/home/user/Vídeos");
    addRoot(UserFolder::documents, downloads);
    addRoot(UserFolder::desktop, "/home/user/Escritorio");
    EXPECT_THAT(scan().scannedRoots, ElementsAre("Descargas", "Escritorio", "Vídeos"));
}

TEST_F(DiskAnalyzerTest, TheFolderNamesAreThoseThatAScanReads) {
    addRoot(UserFolder::videos, "/home/user/Vídeos");
    folders.paths[UserFolder::documents] = "/home/user/absent";
    int changes = 0;
    const auto connection = analyzer->changed.connect([&] { ++changes; });
    EXPECT_THAT(analyzer->folderNames(), IsEmpty());
    analyzer->lookUpFolderNames();
    world.mainLoop.run();
    EXPECT_THAT(analyzer->folderNames(), ElementsAre("Descargas", "Vídeos"));
    EXPECT_EQ(changes, 1);
    analyzer->lookUpFolderNames();
    world.mainLoop.run();
    EXPECT_EQ(changes, 1);
}

TEST_F(DiskAnalyzerTest, ARootThatIsAFileOrDoesNotExistIsLeftOut) {
    folders.paths[UserFolder::documents] = documents;
    folders.paths[UserFolder::videos] = "/home/user/file";
    world.files.put("/home/user/file", "x");
    EXPECT_THAT(scan().scannedRoots, ElementsAre("Descargas"));
    EXPECT_EQ(analyzer->result().totalScannedBytes, 0);
}

TEST_F(DiskAnalyzerTest, ARootThatCannotBeReadIsPassedOver) {
    addRoot(UserFolder::documents, documents);
    put(documents + "/a", 5, now);
    world.files.makeUnreadable(downloads);
    EXPECT_EQ(scan().totalScannedBytes, 5);
    EXPECT_THAT(analyzer->result().scannedRoots, ElementsAre("Descargas", "Documentos"));
}

TEST_F(DiskAnalyzerTest, AFileOfTheThresholdIsListedAndOneByteLessIsNot) {
    put(downloads + "/exact", large, now);
    put(downloads + "/less", large - 1, now);
    EXPECT_THAT(largeNames(), ElementsAre("exact"));
    EXPECT_EQ(analyzer->result().totalScannedBytes, 2 * large - 1);
}

TEST_F(DiskAnalyzerTest, AFileAccessedAtTheCutOffIsNotOld) {
    put(downloads + "/at", large, cutOff);
    put(downloads + "/before", large, cutOff - nanoseconds(1));
    EXPECT_THAT(largeNames(), ElementsAre("before", "at"));
    EXPECT_TRUE(analyzer->result().largeOld[0].isOld);
    EXPECT_FALSE(analyzer->result().largeOld[1].isOld);
    EXPECT_EQ(analyzer->result().reclaimableBytes, large);
}

TEST_F(DiskAnalyzerTest, WithoutAnAccessTimeTheModificationCountsAndWithoutEitherAFileIsOld) {
    put(downloads + "/recent", large + 1, FileTime(), now);
    put(downloads + "/neither", large, FileTime(), FileTime());
    EXPECT_THAT(largeNames(), ElementsAre("neither", "recent"));
    EXPECT_TRUE(analyzer->result().largeOld[0].isOld);
    EXPECT_FALSE(analyzer->result().largeOld[1].isOld);
    EXPECT_EQ(analyzer->result().largeOld[1].lastAccess, now);
}

TEST_F(DiskAnalyzerTest, AFileThatWasReadLatelyIsNotOldHoweverLongAgoItWasChanged) {
    put(downloads + "/read", large, now, FileTime(days(1)));
    EXPECT_FALSE(scan().largeOld[0].isOld);
    EXPECT_FALSE(analyzer->result().lacksAccessTimes);
}

TEST_F(DiskAnalyzerTest, AFileThatWasOnlyWrittenLatelyIsOld) {
    put(downloads + "/written", large, cutOff - days(1), now);
    EXPECT_TRUE(scan().largeOld[0].isOld);
}

TEST_F(DiskAnalyzerTest, WhereAccessesAreNotRecordedTheLaterTimeCounts) {
    world.files.stopRecordingAccesses();
    put(downloads + "/changed", large + 1, cutOff - days(1), now);
    put(downloads + "/copied", large + 2, now, cutOff - days(1));
    put(downloads + "/forgotten", large, cutOff - days(1), cutOff - days(2));
    EXPECT_THAT(largeNames(), ElementsAre("forgotten", "copied", "changed"));
    EXPECT_EQ(analyzer->result().largeOld[0].lastAccess, cutOff - days(1));
    EXPECT_EQ(analyzer->result().reclaimableBytes, large);
    EXPECT_TRUE(analyzer->result().lacksAccessTimes);
}

TEST_F(DiskAnalyzerTest, ALargeRecentFileRanksAfterEveryOldOne) {
    put(downloads + "/huge", 100 * large, now);
    put(downloads + "/old", large, FileTime(days(1)));
    put(downloads + "/older", large + 1, FileTime(days(1)));
    EXPECT_THAT(largeNames(), ElementsAre("older", "old", "huge"));
}

TEST_F(DiskAnalyzerTest, TheSixtyFirstFileIsDroppedWithItsBytes) {
    for (int i = 0; i < 61; ++i) put(fmt::format("{}/{:02}", downloads, i), large + i, FileTime(days(1)));
    EXPECT_THAT(scan().largeOld, SizeIs(60));
    EXPECT_EQ(analyzer->result().largeOld.back().name, "01");
    EXPECT_EQ(analyzer->result().reclaimableBytes, 60 * large + 60 * 61 / 2);
    EXPECT_EQ(analyzer->result().totalScannedBytes, 61 * large + 60 * 61 / 2);
}

TEST_F(DiskAnalyzerTest, WhatLiesDirectlyInARootIsAnItemWithAllBelowIt) {
    addRoot(UserFolder::documents, documents);
    put(downloads + "/folder/a", 1, now);
    put(downloads + "/folder/deep/er/b", 20, now);
    put(downloads + "/folder/deep/c", 300, now);
    put(downloads + "/file", 4000, now);
    put(documents + "/folder/a", 50000, now);
    EXPECT_THAT(folderTexts(), ElementsAre(documents + "/folder=50000", downloads + "/file=4000",
                                           downloads + "/folder=321"));
    EXPECT_EQ(analyzer->result().topFolders[1].name, "file");
}

TEST_F(DiskAnalyzerTest, ARootInsideAnotherOneHasItemsOfItsOwn) {
    addRoot(UserFolder::documents, downloads + "/docs");
    put(downloads + "/docs/folder/a", 5, now);
    EXPECT_THAT(folderTexts(), ElementsAre(downloads + "/docs=5", downloads + "/docs/folder=5"));
}

TEST_F(DiskAnalyzerTest, ARootPathInsideADeeperPathIsRemovedThereToo) {
    put(downloads + "/a" + downloads + "/b/file", 5, now);
    put(downloads + "/c" + downloads + "/file", 6, now);
    EXPECT_THAT(folderTexts(), ElementsAre(downloads + "/cfile=6", downloads + "/ab=5"));
}

TEST_F(DiskAnalyzerTest, TheSixteenthFolderIsDroppedAndEqualOnesAreSortedByPath) {
    for (int i = 0; i < 16; ++i) put(fmt::format("{}/{:02}/a", downloads, i), 7, now);
    const auto texts = folderTexts();
    ASSERT_THAT(texts, SizeIs(15));
    EXPECT_EQ(texts.front(), downloads + "/00=7");
    EXPECT_EQ(texts.back(), downloads + "/14=7");
}

TEST_F(DiskAnalyzerTest, HiddenEntriesAreSkipped) {
    put(downloads + "/.hidden/a", large, now);
    put(downloads + "/folder/.b", large, now);
    EXPECT_EQ(scan().totalScannedBytes, 0);
}

TEST_F(DiskAnalyzerTest, AFolderThatCannotBeReadIsPassedOver) {
    put(downloads + "/closed/a", 5, now);
    put(downloads + "/open/a", 6, now);
    world.files.makeUnreadable(downloads + "/closed");
    EXPECT_THAT(folderTexts(), ElementsAre(downloads + "/open=6"));
}

TEST_F(DiskAnalyzerTest, NamesThatAreNotTextAreKept) {
    put(downloads + "/\xff\xfe/\x80", large, now);
    EXPECT_THAT(largeNames(), ElementsAre("\x80"));
    EXPECT_EQ(analyzer->result().largeOld[0].path, downloads + "/\xff\xfe/\x80");
}

TEST_F(DiskAnalyzerTest, ProgressNamesTheRoot) {
    addRoot(UserFolder::documents, documents);
    std::vector<std::string> labels;
    const auto connection = analyzer->changed.connect([&] { labels.push_back(analyzer->progressLabel()); });
    scan();
    EXPECT_THAT(labels, ElementsAre("", "Analizando Descargas…", "Analizando Documentos…", ""));
}

TEST_F(DiskAnalyzerTest, ASecondScanDuringAScanDoesNothing) {
    put(downloads + "/a", 5, now);
    world.queues.hold();
    analyzer->scan();
    EXPECT_TRUE(analyzer->isScanning());
    int changes = 0;
    const auto connection = analyzer->changed.connect([&] { ++changes; });
    analyzer->scan();
    EXPECT_EQ(changes, 0);
    world.queues.release();
    // The next job of the queue runs those that were held.
    analyzer->scan();
    EXPECT_TRUE(analyzer->isScanning());
    EXPECT_EQ(changes, 0);
}

TEST_F(DiskAnalyzerTest, ANewScanForgetsTheLastResultAtOnce) {
    put(downloads + "/a", 5, now);
    scan();
    world.queues.hold();
    analyzer->scan();
    EXPECT_EQ(analyzer->result().finishedAt, std::nullopt);
    EXPECT_EQ(analyzer->result().totalScannedBytes, 0);
}

TEST_F(DiskAnalyzerTest, RowsHaveNewIdentifiersInEachScan) {
    put(downloads + "/a", large, now);
    std::set<Uuid> ids;
    for (int i = 0; i < 2; ++i) {
        const auto& result = scan();
        ids.insert({result.largeOld.at(0).id, result.topFolders.at(0).id});
    }
    EXPECT_THAT(ids, SizeIs(4));
}

TEST_F(DiskAnalyzerTest, AfterAMoveToTheTrashTheRowGoesAndTheSumsStay) {
    put(downloads + "/a", large, FileTime(days(1)));
    put(downloads + "/b", large, FileTime(days(1)));
    scan();
    EXPECT_TRUE(analyzer->moveToTrash(downloads + "/a"));
    EXPECT_THAT(trash.trashed, ElementsAre(downloads + "/a"));
    ASSERT_THAT(analyzer->result().largeOld, SizeIs(1));
    EXPECT_EQ(analyzer->result().largeOld[0].name, "b");
    EXPECT_EQ(analyzer->result().reclaimableBytes, 2 * large);
    EXPECT_EQ(analyzer->result().totalScannedBytes, 2 * large);
    EXPECT_THAT(analyzer->result().topFolders, SizeIs(2));
}

TEST_F(DiskAnalyzerTest, AMoveToTheTrashThatFailsIsLoggedAndTheRowStays) {
    put(downloads + "/a", large, now);
    scan();
    trash.status = Error{"no space"};
    world.log.expectWarning("Trash failed: no space");
    EXPECT_FALSE(analyzer->moveToTrash(downloads + "/a"));
    EXPECT_THAT(analyzer->result().largeOld, SizeIs(1));
}

TEST_F(DiskAnalyzerTest, RevealsAFile) {
    bool isDone = false;
    analyzer->reveal(downloads + "/a", [&](const Status& status) { isDone = status.ok(); });
    EXPECT_TRUE(isDone);
    EXPECT_THAT(world.desktop.revealed(), ElementsAre(downloads + "/a"));
}

TEST_F(DiskAnalyzerTest, TheResultOfAScanThatIsNotWaitedForIsDropped) {
    put(downloads + "/a", large, now);
    analyzer->scan();
    analyzer.reset();
    world.mainLoop.run();
}

TEST(DiskScanTest, OneVolumeWithoutAccessTimesIsEnoughToSaySo) {
    DiskScan scan{Instant(days(20'000))};
    scan.enterRoot("/r");
    platform::FoundFile found{.path = "/r/a", .info = {}, .accessed = {}, .accessIsRecorded = false};
    scan.add(found);
    found.accessIsRecorded = true;
    scan.add(found);
    EXPECT_TRUE(std::move(scan).result().lacksAccessTimes);
}

TEST(DaysAgo, IsInDaysMonthsAndYears) {
    const Instant now{days(20'000)};
    const auto ago = [&](int count) { return DiskAnalyzer::daysAgo(FileTime(now) - days(count), now); };
    EXPECT_EQ(ago(0), "hoy");
    EXPECT_EQ(DiskAnalyzer::daysAgo(FileTime(now) - days(1) + nanoseconds(1), now), "hoy");
    EXPECT_EQ(DiskAnalyzer::daysAgo(FileTime(now) + days(3), now), "hoy");
    EXPECT_EQ(ago(1), "hace 1d");
    EXPECT_EQ(ago(29), "hace 29d");
    EXPECT_EQ(ago(30), "hace 1mes");
    EXPECT_EQ(ago(364), "hace 12mes");
    EXPECT_EQ(ago(365), "hace 1año");
    EXPECT_EQ(ago(2 * 365), "hace 2año");
}

TEST(ScannedFileTest, TheExtensionIsWhatFollowsTheLastDotInLowerCase) {
    const auto ext = [](const std::string& name) { return ScannedFile{.name = name}.ext(); };
    EXPECT_EQ(ext("a.tar.GZ"), "gz");
    EXPECT_EQ(ext("a"), "");
    EXPECT_EQ(ext(".profile"), "");
    EXPECT_EQ(ext("a."), "");
}

}  // namespace
}  // namespace tidewatch
