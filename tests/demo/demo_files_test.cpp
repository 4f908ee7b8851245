#include "tools/demo/demo_files.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "platform/posix/posix_file_system.h"
#include "system/disk_scan.h"
#include "tests/support/temporary_directory.h"

namespace tidewatch::demo {
namespace {

constexpr auto aDay = std::chrono::sys_days(std::chrono::April / 21 / 2026) + std::chrono::hours(16);

TEST(DemoFiles, AScanFindsForgottenFilesAndHeavyFolders) {
    const test::TemporaryDirectory home;
    writeDemoFiles(aDay, home.path());
    platform::PosixFileSystem files(home.path());
    DiskScan scan(aDay);
    for (const auto* folder : {"/Descargas", "/Escritorio", "/Documentos", "/Vídeos"}) {
        scan.enterRoot(home.path() + folder);
        ASSERT_TRUE(files.enumerate(home.path() + folder, platform::HiddenFiles::skipped,
                                    [&](const platform::FoundFile& found) {
                                        scan.add(found);
                                        return platform::VisitAction::proceed;
                                    }));
    }
    const auto result = std::move(scan).result();
    EXPECT_GT(result.largeOld.size(), 10);
    EXPECT_TRUE(result.largeOld.front().isOld);
    EXPECT_FALSE(result.largeOld.back().isOld);
    EXPECT_GT(result.topFolders.size(), 5);
    EXPECT_GT(result.reclaimableBytes, result.totalScannedBytes / 4);
}

TEST(DemoFiles, TheFoldersHaveTheirNamesInTheUsersLanguage) {
    const test::TemporaryDirectory home;
    writeDemoFiles(aDay, home.path());
    std::ifstream file(home.path() + "/.config/user-dirs.dirs");
    const std::string text(std::istreambuf_iterator<char>(file), {});
    EXPECT_NE(text.find("XDG_VIDEOS_DIR=\"$HOME/Vídeos\"\n"), std::string::npos);
}

}  // namespace
}  // namespace tidewatch::demo
