#include "platform/qt/qt_preferences.h"

#include <gtest/gtest.h>

#include <QSettings>
#include <memory>

#include "support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

const std::string file = "brightlooms/tidewatch.conf";

class QtPreferencesTest : public testing::Test {
protected:
    QtPreferencesTest() {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           QString::fromStdString(config_.path()));
    }

    QtPreferences& preferences() {
        if (!preferences_) preferences_ = std::make_unique<QtPreferences>();
        return *preferences_;
    }
    void startAgain() { preferences_.reset(); }

    test::TemporaryDirectory config_;
    std::unique_ptr<QtPreferences> preferences_;
};

TEST_F(QtPreferencesTest, AnAbsentKeyIsToldFromAStoredZero) {
    EXPECT_FALSE(preferences().contains("dayStartHour"));
    EXPECT_EQ(preferences().integer("dayStartHour"), 0);
    preferences().setInteger("dayStartHour", 0);
    EXPECT_TRUE(preferences().contains("dayStartHour"));
}

TEST_F(QtPreferencesTest, EveryTypeSurvivesARestart) {
    preferences().setBoolean("windowVisible", false);
    preferences().setInteger("idleThresholdSeconds", 180);
    preferences().setReal("sizeScale", 0.33);
    preferences().setText("activeThemeID", "hacker");
    startAgain();
    EXPECT_TRUE(preferences().contains("windowVisible"));
    EXPECT_FALSE(preferences().boolean("windowVisible"));
    EXPECT_EQ(preferences().integer("idleThresholdSeconds"), 180);
    EXPECT_EQ(preferences().real("sizeScale"), 0.33);
    EXPECT_EQ(preferences().text("activeThemeID"), "hacker");
}

TEST_F(QtPreferencesTest, AValueEditedByHandIsReadByItsText) {
    config_.write(
        file, "[General]\nidleThresholdSeconds=often\nwindowVisible=true\nsizeScale=0.5\ndayStartHour=30\n");
    EXPECT_EQ(preferences().integer("idleThresholdSeconds"), 0);
    EXPECT_TRUE(preferences().boolean("windowVisible"));
    EXPECT_EQ(preferences().real("sizeScale"), 0.5);
    EXPECT_EQ(preferences().integer("dayStartHour"), 30);
}

TEST_F(QtPreferencesTest, AListReadsAsNoNumber) {
    config_.write(file, "[General]\nidleThresholdSeconds=1, 2\n");
    EXPECT_TRUE(preferences().contains("idleThresholdSeconds"));
    EXPECT_EQ(preferences().integer("idleThresholdSeconds"), 0);
}

TEST_F(QtPreferencesTest, ARemovedKeyIsAbsent) {
    preferences().setReal("windowOriginX", 10);
    preferences().remove("windowOriginX");
    startAgain();
    EXPECT_FALSE(preferences().contains("windowOriginX"));
}

TEST_F(QtPreferencesTest, AKeyWithASlashOrADotIsOneKey) {
    preferences().setInteger("gate.workSeconds", 7);
    startAgain();
    EXPECT_EQ(preferences().integer("gate.workSeconds"), 7);
}

}  // namespace
}  // namespace tidewatch::platform
