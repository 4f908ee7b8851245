#include "platform/freedesktop/ejection_plan.h"

#include <gtest/gtest.h>

namespace tidewatch::platform {
namespace {

using DriveAction = EjectionPlan::DriveAction;

constexpr char blocks[] = "/org/freedesktop/UDisks2/block_devices/";
constexpr char drives[] = "/org/freedesktop/UDisks2/drives/";

struct EjectionPlanTest : testing::Test {
    DiskObjects objects;

    void addDrive(const QString& name, const QVariantMap& properties) {
        objects[QDBusObjectPath(drives + name)]["org.freedesktop.UDisks2.Drive"] = properties;
    }
    void addBlock(const QString& name, const QString& drive, const QString& encrypted = {}) {
        const auto path = [](const char* folder, const QString& last) {
            return QVariant::fromValue(QDBusObjectPath(last.isEmpty() ? "/" : folder + last));
        };
        objects[QDBusObjectPath(blocks + name)]["org.freedesktop.UDisks2.Block"] = {
            {"Drive", path(drives, drive)}, {"CryptoBackingDevice", path(blocks, encrypted)}};
    }
    void mount(const QString& block, const QList<QByteArray>& mountPoints) {
        objects[QDBusObjectPath(blocks + block)]["org.freedesktop.UDisks2.Filesystem"] = {
            {"MountPoints", QVariant::fromValue(mountPoints)}};
    }
    // A stick that can be switched off, with one partition.
    void addStick() {
        addDrive("Stick", {{"CanPowerOff", true}, {"Ejectable", true}, {"Optical", false}});
        addBlock("sdb1", "Stick");
        mount("sdb1", {QByteArray("/media/user/STICK\0", 18)});
    }
};

TEST_F(EjectionPlanTest, AStickIsUnmountedAndSwitchedOff) {
    addStick();
    const auto plan = planEjection(objects, "/media/user/STICK");
    ASSERT_TRUE(plan);
    EXPECT_EQ(plan->fileSystem, blocks + QString("sdb1"));
    EXPECT_EQ(plan->encrypted, "");
    EXPECT_EQ(plan->drive, drives + QString("Stick"));
    EXPECT_EQ(plan->action, DriveAction::powerOff);
}

TEST_F(EjectionPlanTest, WhatTheServiceDoesNotKnowHasNoPlan) {
    addStick();
    EXPECT_FALSE(planEjection(objects, "/media/user/STICK2"));
    EXPECT_FALSE(planEjection(objects, "/media/user"));
    EXPECT_FALSE(planEjection({}, "/media/user/STICK"));
}

TEST_F(EjectionPlanTest, AVolumeMountedTwiceIsFoundByEitherPlace) {
    addStick();
    mount("sdb1", {"/mnt/a", "/mnt/b"});
    EXPECT_TRUE(planEjection(objects, "/mnt/b"));
    EXPECT_EQ(planEjection(objects, "/mnt/a")->action, DriveAction::powerOff);
}

TEST_F(EjectionPlanTest, ADriveStaysOnWhileAnotherVolumeOfItIsMounted) {
    addStick();
    addBlock("sdb2", "Stick");
    mount("sdb2", {"/media/user/SECOND"});
    const auto plan = planEjection(objects, "/media/user/STICK");
    ASSERT_TRUE(plan);
    EXPECT_EQ(plan->drive, "");
    EXPECT_EQ(plan->action, DriveAction::none);
    mount("sdb2", {});
    EXPECT_EQ(planEjection(objects, "/media/user/STICK")->action, DriveAction::powerOff);
}

TEST_F(EjectionPlanTest, AnotherDriveDoesNotMatter) {
    addStick();
    addDrive("Other", {});
    addBlock("sdc1", "Other");
    mount("sdc1", {"/media/user/OTHER"});
    EXPECT_EQ(planEjection(objects, "/media/user/STICK")->action, DriveAction::powerOff);
    EXPECT_EQ(planEjection(objects, "/media/user/OTHER")->action, DriveAction::none);
}

TEST_F(EjectionPlanTest, ADiscComesOutOfItsDrive) {
    addDrive("Dvd", {{"CanPowerOff", true}, {"Ejectable", true}, {"Optical", true}});
    addBlock("sr0", "Dvd");
    mount("sr0", {"/media/user/DISC"});
    EXPECT_EQ(planEjection(objects, "/media/user/DISC")->action, DriveAction::ejectMedium);
}

TEST_F(EjectionPlanTest, ACardComesOutOfAReaderThatCannotBeSwitchedOff) {
    addDrive("Reader", {{"CanPowerOff", false}, {"Ejectable", true}, {"Optical", false}});
    addBlock("mmcblk0p1", "Reader");
    mount("mmcblk0p1", {"/media/user/CARD"});
    EXPECT_EQ(planEjection(objects, "/media/user/CARD")->action, DriveAction::ejectMedium);
}

TEST_F(EjectionPlanTest, AnEncryptedVolumeIsLockedAndItsDriveSwitchedOff) {
    addDrive("Stick", {{"CanPowerOff", true}});
    addBlock("sdb1", "Stick");
    addBlock("dm_2d0", "", "sdb1");
    mount("dm_2d0", {"/media/user/SECRET"});
    const auto plan = planEjection(objects, "/media/user/SECRET");
    ASSERT_TRUE(plan);
    EXPECT_EQ(plan->fileSystem, blocks + QString("dm_2d0"));
    EXPECT_EQ(plan->encrypted, blocks + QString("sdb1"));
    EXPECT_EQ(plan->action, DriveAction::powerOff);
}

TEST_F(EjectionPlanTest, AVolumeWithoutADriveIsOnlyUnmounted) {
    addBlock("loop0", "");
    mount("loop0", {"/media/user/IMAGE"});
    const auto plan = planEjection(objects, "/media/user/IMAGE");
    ASSERT_TRUE(plan);
    EXPECT_EQ(plan->fileSystem, blocks + QString("loop0"));
    EXPECT_EQ(plan->action, DriveAction::none);
}

TEST_F(EjectionPlanTest, ANameThatIsNoTextIsFound) {
    addStick();
    mount("sdb1", {"/media/user/\xff\xfe"});
    EXPECT_TRUE(planEjection(objects, "/media/user/\xff\xfe"));
}

}  // namespace
}  // namespace tidewatch::platform
