#include "system/volume_ejector.h"

#include <gmock/gmock.h>

#include <memory>

#include "platform/fake/fake_disk_volumes.h"
#include "platform/fake/fake_log.h"
#include "platform/fake/fake_volume_ejection.h"
#include "tests/support/fail_test.h"

namespace tidewatch {
namespace {

using platform::EjectionError;
using platform::EjectionErrorKind;
using testing::ElementsAre;

struct VolumeEjectorTest : testing::Test {
    platform::FakeVolumeEjection ejection;
    platform::FakeDiskVolumes volumes;
    platform::FakeLog log{test::failTest};
    std::unique_ptr<VolumeEjector> ejector = std::make_unique<VolumeEjector>(
        VolumeEjector::Dependencies{.ejection = ejection, .volumes = volumes, .log = log});
    int changes = 0;
    Connection connection = ejector->changed.connect([this] { ++changes; });
    int ends = 0;
    std::optional<EjectionError> error;

    void eject(const std::string& mountPoint) {
        ejector->eject(mountPoint, [this](const std::optional<EjectionError>& told) {
            ++ends;
            error = told;
        });
    }
};

TEST_F(VolumeEjectorTest, AVolumeIsBeingEjectedUntilTheEndIsTold) {
    eject("/media/usb");
    EXPECT_THAT(ejection.requested, ElementsAre("/media/usb"));
    EXPECT_TRUE(ejector->isEjecting("/media/usb"));
    EXPECT_FALSE(ejector->isEjecting("/media/other"));
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(ends, 0);
    ejection.finish();
    EXPECT_FALSE(ejector->isEjecting("/media/usb"));
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(error);
}

TEST_F(VolumeEjectorTest, AfterTheEndTheVolumesAreReadAgain) {
    eject("/media/usb");
    EXPECT_EQ(volumes.refreshes, 0);
    ejection.finish();
    EXPECT_EQ(volumes.refreshes, 1);
}

TEST_F(VolumeEjectorTest, ASecondRequestForTheSameVolumeIsIgnored) {
    eject("/media/usb");
    eject("/media/usb");
    eject("/media/other");
    EXPECT_THAT(ejection.requested, ElementsAre("/media/usb", "/media/other"));
    ejection.finish();
    EXPECT_EQ(ends, 1);
    EXPECT_TRUE(ejector->isEjecting("/media/other"));
    eject("/media/usb");
    EXPECT_THAT(ejection.requested, ElementsAre("/media/usb", "/media/other", "/media/usb"));
}

TEST_F(VolumeEjectorTest, AFailureIsToldAndLogged) {
    log.expectWarning("Tidewatch: failed to eject /media/usb: a file is open");
    eject("/media/usb");
    ejection.finish(EjectionError{EjectionErrorKind::inUse, "a file is open"});
    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, EjectionErrorKind::inUse);
    EXPECT_FALSE(ejector->isEjecting("/media/usb"));
}

TEST_F(VolumeEjectorTest, AnEndAfterItsDestructionIsNotTold) {
    eject("/media/usb");
    ejector.reset();
    ejection.finish();
    EXPECT_EQ(ends, 0);
}

}  // namespace
}  // namespace tidewatch
