#include "platform/linux/mount_table.h"

#include <gmock/gmock.h>

namespace tidewatch::platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::vector<std::string> places(std::string_view table) {
    std::vector<std::string> places;
    for (const auto& mount : volumeMounts(parseMountTable(table))) places.push_back(mount.mountPoint);
    return places;
}

TEST(ParseMountTable, ReadsPathsWithBlanksAndOptionalFields) {
    const auto mounts = parseMountTable(
        "36 25 8:1 / /media/My\\040Disk\\134x rw,relatime shared:1 master:2 - ext4 /dev/sda1 "
        "rw,data=ordered\n");
    ASSERT_THAT(mounts, SizeIs(1));
    EXPECT_EQ(mounts[0].device, "8:1");
    EXPECT_EQ(mounts[0].root, "/");
    EXPECT_EQ(mounts[0].mountPoint, "/media/My Disk\\x");
    EXPECT_EQ(mounts[0].type, "ext4");
    EXPECT_EQ(mounts[0].source, "/dev/sda1");
}

TEST(ParseMountTable, WhatOnlyLooksLikeAnEscapeStays) {
    const auto mounts = parseMountTable("36 25 8:1 / /m\\9\\777\\04 rw - ext4 /dev/sda1 rw\n");
    ASSERT_THAT(mounts, SizeIs(1));
    EXPECT_EQ(mounts[0].mountPoint, "/m\\9\\777\\04");
}

TEST(ParseMountTable, LinesThatAreCutOffAreLeftOut) {
    const std::string line = "36 25 8:1 / /data rw shared:1 - ext4 /dev/sda1 rw";
    for (std::size_t length = 0; length < line.find("/dev/sda1"); ++length)
        EXPECT_THAT(parseMountTable(line.substr(0, length)), IsEmpty()) << length;
    EXPECT_THAT(parseMountTable(line), SizeIs(1));
    EXPECT_THAT(parseMountTable("36 25 8:1 / data rw - ext4 /dev/sda1 rw\n"), IsEmpty());
}

TEST(VolumeMounts, AreDisksAndSharesButNoPseudoFileSystemsAndNoImages) {
    EXPECT_THAT(places("1 0 0:21 / /proc rw - proc proc rw\n"
                       "2 0 0:5 / /dev rw - devtmpfs /dev/odd rw\n"
                       "3 0 8:2 / / rw - ext4 /dev/sda2 rw\n"
                       "4 0 7:3 / /snap/core/1 ro - squashfs /dev/loop3 ro\n"
                       "5 0 7:4 / /mnt/iso ro - iso9660 /dev/loop4 ro\n"
                       "6 0 0:60 / /run/user/1000/doc rw - fuse.portal portal rw\n"
                       "7 0 0:61 / /srv/nas rw - nfs4 nas:/export rw\n"
                       "8 0 0:62 / /home/u/remote rw - fuse.sshfs u@host: rw\n"
                       "9 0 8:33 / /media/u/USB rw - fuseblk /dev/sdc1 rw\n"
                       "10 0 0:63 / /srv/auto rw - autofs systemd-1 rw\n"
                       "11 0 0:64 / /var/lib/containers/merged rw - overlay overlay rw\n"),
                ElementsAre("/", "/srv/nas", "/home/u/remote", "/media/u/USB"));
}

TEST(VolumeMounts, EachDeviceCountsOnceByItsRootOrWhole) {
    EXPECT_THAT(places("1 0 0:30 /@home /home rw - btrfs /dev/nvme0n1p2 rw\n"
                       "2 0 0:31 /@ / rw - btrfs /dev/nvme0n1p2 rw\n"
                       "3 0 8:17 /photos /home/u/Photos rw - ext4 /dev/sdb1 rw\n"
                       "4 0 8:17 / /data rw - ext4 /dev/sdb1 rw\n"
                       "5 0 8:18 /a/b /x/longer rw - ext4 /dev/sdb2 rw\n"
                       "6 0 8:18 /a /x/short rw - ext4 /dev/sdb2 rw\n"
                       "7 0 0:40 / /tank rw - zfs tank rw\n"
                       "8 0 0:41 / /tank/home rw - zfs tank/home rw\n"),
                ElementsAre("/", "/data", "/x/short", "/tank"));
}

TEST(VolumeMounts, WhatIsUnderBootIsLeftOut) {
    EXPECT_THAT(places("1 0 8:1 / /boot/efi rw - vfat /dev/sda1 rw\n2 0 8:2 / /boot rw - ext4 /dev/sda2 rw\n"
                       "3 0 8:3 / /bootstrap rw - ext4 /dev/sda3 rw\n"),
                ElementsAre("/bootstrap"));
}

TEST(VolumeMounts, UnlessNothingElseIsThere) {
    EXPECT_THAT(places("1 0 8:1 / /boot/efi rw - vfat /dev/sda1 rw\n"), ElementsAre("/boot/efi"));
}

TEST(VolumeKindTest, ASubvolumeOfAPoolIsLocalAndAServersDirectoryIsAShare) {
    EXPECT_EQ(volumeKind({.device{}, .root{}, .mountPoint{}, .type = "zfs", .source = "tank/home"}),
              VolumeKind::local);
    EXPECT_EQ(volumeKind({.device{}, .root{}, .mountPoint{}, .type = "cifs", .source = "//server/x"}),
              VolumeKind::share);
    EXPECT_EQ(volumeKind({.device{}, .root{}, .mountPoint{}, .type = "tmpfs", .source = "/dev/shm"}),
              std::nullopt);
}

}  // namespace
}  // namespace tidewatch::platform
