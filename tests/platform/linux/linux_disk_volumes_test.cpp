#include "platform/linux/linux_disk_volumes.h"

#include <gmock/gmock.h>

#include <atomic>
#include <condition_variable>
#include <thread>

#include "platform/fake/fake_clock.h"
#include "platform/fake/fake_main_loop.h"
#include "tests/support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Shared with the threads that ask.
struct Sizes {
    std::mutex mutex;
    std::condition_variable changed;
    std::map<std::string, VolumeSize> sizes;
    std::string hanging;
    int hangs = 0;

    std::optional<VolumeSize> of(const std::string& path) {
        std::unique_lock lock(mutex);
        if (hanging == path) {
            ++hangs;
            changed.notify_all();
            changed.wait(lock, [&] { return hanging != path; });
        }
        const auto size = sizes.find(path);
        return size == sizes.end() ? std::nullopt : std::optional(size->second);
    }
    void set(const std::string& path, std::int64_t total) {
        const std::lock_guard lock(mutex);
        sizes[path] = {total, total / 2};
    }
    void hang(const std::string& path) {
        const std::lock_guard lock(mutex);
        hanging = path;
        changed.notify_all();
    }
    void awaitHang() {
        std::unique_lock lock(mutex);
        changed.wait(lock, [&] { return hangs > 0; });
    }
};

struct LinuxDiskVolumesTest : testing::Test {
    FakeClock clock{Instant(std::chrono::seconds(1'800'000'000))};
    FakeMainLoop mainLoop{clock};
    test::TemporaryDirectory machine;
    std::shared_ptr<Sizes> sizes = std::make_shared<Sizes>();
    std::optional<LinuxDiskVolumes> volumes;
    int readings = 0;
    Connection connection;

    void start() {
        volumes.emplace(mainLoop,
                        LinuxDiskVolumes::Sources{
                            .mountInfo = machine.path() + "/mountinfo",
                            .sysDirectory = machine.path() + "/sys",
                            .devDirectory = machine.path() + "/dev",
                            .sizeOf = [sizes = sizes](const std::string& path) { return sizes->of(path); },
                        });
        connection = volumes->refreshed.connect([this] { ++readings; });
    }
    ~LinuxDiskVolumesTest() override { sizes->hang(""); }

    std::map<std::string, std::optional<std::int64_t>> read() {
        mainLoop.run();
        // A reading may be under way that began before this call: only the second one is certain to be new.
        const auto enough = readings + 2;
        // The thread may still be busy with leaving its last job.
        while (readings < enough) {
            volumes->refresh();
            mainLoop.run();
            std::this_thread::yield();
        }
        std::map<std::string, std::optional<std::int64_t>> totals;
        const auto list = volumes->latest().value();
        for (const auto& volume : list) totals[volume.path] = volume.totalBytes;
        return totals;
    }
    using Totals = std::map<std::string, std::optional<std::int64_t>>;
};

constexpr char table[] =
    "1 0 8:2 / / rw - ext4 /dev/sda2 rw\n"
    "2 0 0:61 / /srv/nas rw - nfs4 nas:/export rw\n"
    "3 0 8:3 / /data rw - ext4 /dev/sda3 rw\n";

TEST_F(LinuxDiskVolumesTest, NothingIsKnownBeforeTheFirstReading) {
    machine.write("mountinfo", table);
    start();
    EXPECT_EQ(volumes->latest(), std::nullopt);
}

TEST_F(LinuxDiskVolumesTest, AReadingHasNamesSizesAndPlaces) {
    machine.write("mountinfo", table);
    machine.write("dev/sda3", "");
    std::filesystem::create_directories(machine.path() + "/dev/disk/by-label");
    std::filesystem::create_symlink("../../sda3", machine.path() + "/dev/disk/by-label/Datos");
    sizes->set("/", 1000);
    sizes->set("/data", 300);
    start();
    read();
    const auto list = volumes->latest().value();
    ASSERT_EQ(list.size(), 3);
    EXPECT_EQ(list[0].name, "Sistema");
    EXPECT_EQ(list[0].totalBytes, 1000);
    EXPECT_EQ(list[0].freeBytes, 500);
    EXPECT_EQ(list[0].isInternal, true);
    EXPECT_EQ(list[1].path, "/srv/nas");
    EXPECT_EQ(list[1].name, std::nullopt);
    EXPECT_EQ(list[1].isInternal, false);
    EXPECT_EQ(list[2].name, "Datos");
}

TEST_F(LinuxDiskVolumesTest, WhatDoesNotTellItsSizeHasNone) {
    machine.write("mountinfo", "1 0 8:2 / / rw - ext4 /dev/sda2 rw\n");
    start();
    EXPECT_EQ(read(), (Totals{{"/", std::nullopt}}));
}

TEST_F(LinuxDiskVolumesTest, WhatIsMountedLaterAppearsAndWhatIsUnmountedGoes) {
    machine.write("mountinfo",
                  "1 0 8:2 / / rw - ext4 /dev/sda2 rw\n3 0 8:3 / /data rw - ext4 /dev/sda3 rw\n");
    sizes->set("/", 1000);
    sizes->set("/data", 300);
    sizes->set("/media/usb", 20);
    start();
    EXPECT_EQ(read(), (Totals{{"/", 1000}, {"/data", 300}}));
    machine.write("mountinfo",
                  "1 0 8:2 / / rw - ext4 /dev/sda2 rw\n9 0 8:33 / /media/usb rw - vfat /dev/sdc1 rw\n");
    EXPECT_EQ(read(), (Totals{{"/", 1000}, {"/media/usb", 20}}));
}

TEST_F(LinuxDiskVolumesTest, AShareThatDoesNotRespondDelaysNothingAndKeepsItsFigures) {
    machine.write("mountinfo", table);
    sizes->set("/", 1000);
    sizes->set("/data", 300);
    sizes->set("/srv/nas", 5000);
    start();
    while (read()["/srv/nas"] != 5000) std::this_thread::yield();
    sizes->hang("/srv/nas");
    // Until it is asked again, which may take two readings.
    for (bool isHanging = false; !isHanging;) {
        read();
        const std::lock_guard lock(sizes->mutex);
        isHanging = sizes->hangs > 0;
    }
    sizes->set("/", 900);
    sizes->set("/srv/nas", 6000);
    EXPECT_EQ(read(), (Totals{{"/", 900}, {"/srv/nas", 5000}, {"/data", 300}}));
    EXPECT_EQ(read(), (Totals{{"/", 900}, {"/srv/nas", 5000}, {"/data", 300}}));
    EXPECT_EQ(sizes->hangs, 1);
    sizes->hang("");
    while (read()["/srv/nas"] != 6000) std::this_thread::yield();
}

TEST_F(LinuxDiskVolumesTest, AHangingVolumeDoesNotDelayTheEnd) {
    machine.write("mountinfo", table);
    sizes->hang("/");
    start();
    volumes->refresh();
    sizes->awaitHang();
    volumes->refresh();
    volumes.reset();
    mainLoop.run();
    EXPECT_EQ(readings, 0);
}

TEST_F(LinuxDiskVolumesTest, AReadingThatIsDeliveredAfterTheEndIsDropped) {
    machine.write("mountinfo", table);
    start();
    read();
    const auto before = readings;
    volumes->refresh();
    volumes.reset();
    mainLoop.run();
    EXPECT_EQ(readings, before);
}

TEST_F(LinuxDiskVolumesTest, WithoutAMountTableThereIsNoList) {
    start();
    while (readings == 0) {
        volumes->refresh();
        mainLoop.run();
        std::this_thread::yield();
    }
    EXPECT_EQ(volumes->latest(), std::nullopt);
}

TEST(AskForSize, ADirectoryTellsItAndAFileOrNothingDoesNot) {
    const test::TemporaryDirectory directory;
    directory.write("file", "x");
    const auto size = LinuxDiskVolumes::askForSize(directory.path());
    ASSERT_TRUE(size);
    EXPECT_GT(size->total, 0);
    EXPECT_LE(size->free, size->total);
    EXPECT_FALSE(LinuxDiskVolumes::askForSize(directory.path() + "/file"));
    EXPECT_FALSE(LinuxDiskVolumes::askForSize(directory.path() + "/absent"));
}

}  // namespace
}  // namespace tidewatch::platform
