// A volume made for the test, where it may be mounted; elsewhere the folder that it would be mounted on.

#include <gmock/gmock.h>
#include <sys/mount.h>
#include <sys/statvfs.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "platform/linux/kernel_file.h"
#include "platform/linux/linux_disk_volumes.h"
#include "platform/linux/mount_table.h"
#include "platform/posix/directory_tree.h"
#include "tests/support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

constexpr std::uintmax_t imageSize = 16 * 1024 * 1024;

struct LoopVolumeTest : testing::Test {
    LoopVolumeTest() {
        std::filesystem::create_directory(mountPoint);
        directory.write("image", "");
        std::filesystem::resize_file(image, imageSize);
        isMounted = run("mkfs.ext4 -q " + image) && run("mount -o loop,noatime " + image + " " + mountPoint);
    }
    ~LoopVolumeTest() override {
        if (isMounted) ::umount2(mountPoint.c_str(), MNT_DETACH);
    }

    static bool run(const std::string& command) {
        return std::system(("PATH=$PATH:/usr/sbin:/sbin; " + command + " >/dev/null 2>&1").c_str()) == 0;
    }
    // Whether the volume tells when a file in it was read.
    [[nodiscard]] bool accessIsRecorded() const {
        bool isRecorded = false;
        EXPECT_TRUE(enumerateDirectoryTree(mountPoint, HiddenFiles::included, [&](const FoundFile& found) {
            if (found.info.kind == FileKind::file) isRecorded = found.accessIsRecorded;
            return VisitAction::proceed;
        }));
        return isRecorded;
    }

    test::TemporaryDirectory directory;
    const std::string mountPoint = directory.path() + "/volume";
    const std::string image = directory.path() + "/image";
    bool isMounted = false;
};

TEST_F(LoopVolumeTest, ItsSizeIsThatOfItsFileSystem) {
    const auto size = LinuxDiskVolumes::askForSize(mountPoint).value();
    struct statvfs status {};
    ASSERT_EQ(::statvfs(mountPoint.c_str(), &status), 0);
    EXPECT_EQ(size.total, static_cast<std::int64_t>(status.f_blocks * status.f_frsize));
    EXPECT_GT(size.free, 0);
    EXPECT_LE(size.free, size.total);
    if (isMounted) {
        EXPECT_LE(size.total, static_cast<std::int64_t>(imageSize));
        EXPECT_GT(size.total, static_cast<std::int64_t>(imageSize / 2));
    }
}

TEST_F(LoopVolumeTest, AnImageIsNoVolumeOfAPerson) {
    KernelFile table("/proc/self/mountinfo");
    const auto mounts = parseMountTable(table.read().value());
    const auto mount = std::ranges::find(mounts, mountPoint, &Mount::mountPoint);
    EXPECT_EQ(mount != mounts.end(), isMounted);
    for (const auto& volume : volumeMounts(mounts)) EXPECT_NE(volume.mountPoint, mountPoint);
}

TEST_F(LoopVolumeTest, AccessTimesSaySomethingWhereTheyAreRecorded) {
    directory.write("volume/a", "x");
    struct statvfs status {};
    ASSERT_EQ(::statvfs(mountPoint.c_str(), &status), 0);
    EXPECT_EQ(accessIsRecorded(), (status.f_flag & ST_NOATIME) == 0);
    if (!isMounted) return;
    EXPECT_FALSE(accessIsRecorded());
    ASSERT_TRUE(run("mount -o remount,strictatime " + mountPoint));
    EXPECT_TRUE(accessIsRecorded());
}

}  // namespace
}  // namespace tidewatch::platform
