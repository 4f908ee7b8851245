#include "platform/linux/block_devices.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

struct BlockDevicesTest : testing::Test {
    test::TemporaryDirectory machine;
    BlockDevices devices{machine.path() + "/sys", machine.path() + "/dev"};

    void link(const std::string& from, const std::string& to) {
        const std::filesystem::path path = machine.path() + "/" + from;
        std::filesystem::create_directories(path.parent_path());
        std::filesystem::create_symlink(machine.path() + "/" + to, path);
    }

    // A disk at `path` below /sys/devices, with one partition.
    void addDisk(const std::string& path, const std::string& number, const std::string& partitionNumber,
                 const std::string& removable) {
        const auto name = path.substr(path.rfind('/') + 1);
        const auto directory = "sys/devices/" + path;
        machine.write(directory + "/removable", removable);
        machine.write(directory + "/" + name + "1/partition", "1\n");
        link("sys/class/block/" + name, directory);
        link("sys/class/block/" + name + "1", directory + "/" + name + "1");
        link("sys/dev/block/" + number, directory);
        link("sys/dev/block/" + partitionNumber, directory + "/" + name + "1");
        machine.write("dev/" + name + "1", "");
    }

    static Mount mount(const std::string& device, const std::string& source) {
        return {.device = device, .root = "/", .mountPoint = "/m", .type = "ext4", .source = source};
    }
};

TEST_F(BlockDevicesTest, ADiskThatIsBuiltInIsInternal) {
    addDisk("pci0000:00/ata1/block/sda", "8:0", "8:1", "0\n");
    EXPECT_EQ(devices.kernelName(mount("8:1", "/dev/sda1")), "sda1");
    EXPECT_TRUE(devices.isInternal("sda1"));
    EXPECT_TRUE(devices.isInternal("sda"));
}

TEST_F(BlockDevicesTest, ARemovableOneIsNot) {
    addDisk("pci0000:00/mmc0/block/mmcblk0", "179:0", "179:1", "1\n");
    EXPECT_FALSE(devices.isInternal("mmcblk01"));
    EXPECT_FALSE(devices.isInternal("mmcblk0"));
}

TEST_F(BlockDevicesTest, OneOnUsbIsNotWhateverItSays) {
    addDisk("pci0000:00/usb2/2-1/block/sdb", "8:16", "8:17", "0\n");
    EXPECT_FALSE(devices.isInternal("sdb1"));
}

TEST_F(BlockDevicesTest, AnEncryptedVolumeIsWhereItsDeviceIs) {
    addDisk("pci0000:00/usb2/2-1/block/sdb", "8:16", "8:17", "0\n");
    machine.write("sys/devices/virtual/block/dm-0/removable", "0\n");
    link("sys/devices/virtual/block/dm-0/slaves/sdb1", "sys/class/block/sdb1");
    link("sys/class/block/dm-0", "sys/devices/virtual/block/dm-0");
    link("sys/dev/block/254:0", "sys/devices/virtual/block/dm-0");
    EXPECT_EQ(devices.kernelName(mount("254:0", "/dev/mapper/luks-1234")), "dm-0");
    EXPECT_FALSE(devices.isInternal("dm-0"));
}

TEST_F(BlockDevicesTest, DevicesThatLieOnThemselvesComeToAnEnd) {
    machine.write("sys/devices/virtual/block/dm-0/removable", "0\n");
    link("sys/devices/virtual/block/dm-0/slaves/dm-0", "sys/class/block/dm-0");
    link("sys/class/block/dm-0", "sys/devices/virtual/block/dm-0");
    EXPECT_TRUE(devices.isInternal("dm-0"));
}

TEST_F(BlockDevicesTest, WithoutANumberOfItsOwnTheSourceTells) {
    addDisk("pci0000:00/ata1/block/sda", "8:0", "8:1", "0\n");
    link("dev/mapper/data", "dev/sda1");
    EXPECT_EQ(devices.kernelName(mount("0:44", "/dev/mapper/data")), "sda1");
    EXPECT_EQ(devices.kernelName(mount("0:44", "/dev/absent")), "absent");
    EXPECT_EQ(devices.kernelName(mount("0:44", "tank")), "");
}

TEST_F(BlockDevicesTest, WhatIsUnknownIsInternalAndHasNoLabel) {
    EXPECT_TRUE(devices.isInternal("sdz"));
    EXPECT_TRUE(devices.isInternal(""));
    EXPECT_EQ(devices.label("sdz"), std::nullopt);
}

TEST_F(BlockDevicesTest, ALabelIsThatOfItsDeviceDecoded) {
    addDisk("pci0000:00/ata1/block/sda", "8:0", "8:1", "0\n");
    addDisk("pci0000:00/ata2/block/sdb", "8:16", "8:17", "0\n");
    link("dev/disk/by-label/Other", "dev/sdb1");
    link("dev/disk/by-label/Fotos\\x20a\\xc3\\xb1o\\x", "dev/sda1");
    EXPECT_EQ(devices.label("sda1"), "Fotos año\\x");
    EXPECT_EQ(devices.label("sdb1"), "Other");
}

}  // namespace
}  // namespace tidewatch::platform
