#include "platform/qt/qt_preferences.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <QCoreApplication>
#include <filesystem>
#include <memory>

#include "platform/fake/fake_log.h"
#include "support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

const std::string file = "brightlooms/tidewatch.conf";

class QtPreferencesTest : public testing::Test {
protected:
    QtPreferences& preferences() {
        if (!preferences_) preferences_ = std::make_unique<QtPreferences>(config_.path(), log_);
        return *preferences_;
    }
    void startAgain() { preferences_.reset(); }

    test::TemporaryDirectory config_;
    FakeLog log_{[](const std::string& complaint) { ADD_FAILURE() << complaint; }};
    std::unique_ptr<QtPreferences> preferences_;
};

TEST_F(QtPreferencesTest, AMissingKeyIsDistinguishedFromAStoredZero) {
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

TEST_F(QtPreferencesTest, ANamedPipeThatTakesItsPlaceMeanwhileStopsNeitherTheWritingNorTheEnd) {
    const auto path = config_.path() + "/" + file;
    preferences().setInteger("dayStartHour", 4);
    preferences().sync();
    ASSERT_TRUE(std::filesystem::remove(path));
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    preferences().setInteger("dayStartHour", 5);
    QCoreApplication::processEvents();
    preferences().sync();
    EXPECT_EQ(preferences().integer("dayStartHour"), 5);
    startAgain();
    EXPECT_TRUE(std::filesystem::is_fifo(path));
}

class QtPreferencesWithoutAFileTest : public QtPreferencesTest {
protected:
    QtPreferencesWithoutAFileTest() { std::filesystem::create_directories(config_.path() + "/brightlooms"); }

    void expectMemoryOnly() {
        log_.expectWarning("is no ordinary file: the settings start from their defaults and are not kept");
        EXPECT_FALSE(preferences().contains("dayStartHour"));
        EXPECT_EQ(preferences().integer("dayStartHour"), 0);
        preferences().setInteger("dayStartHour", 5);
        preferences().setText("activeThemeID", "hacker");
        preferences().setBoolean("windowVisible", true);
        EXPECT_EQ(preferences().integer("dayStartHour"), 5);
        EXPECT_EQ(preferences().text("activeThemeID"), "hacker");
        EXPECT_TRUE(preferences().boolean("windowVisible"));
        preferences().remove("dayStartHour");
        EXPECT_FALSE(preferences().contains("dayStartHour"));
        startAgain();
    }

    const std::string path_ = config_.path() + "/" + file;
};

TEST_F(QtPreferencesWithoutAFileTest, ANamedPipeInItsPlaceMeansDefaultsInMemory) {
    ASSERT_EQ(::mkfifo(path_.c_str(), 0600), 0);
    expectMemoryOnly();
    EXPECT_TRUE(std::filesystem::is_fifo(path_));
}

TEST_F(QtPreferencesWithoutAFileTest, ANamedPipeInThePlaceOfItsLockMeansDefaultsInMemory) {
    ASSERT_EQ(::mkfifo((path_ + ".lock").c_str(), 0600), 0);
    expectMemoryOnly();
}

TEST_F(QtPreferencesWithoutAFileTest, AFolderInItsPlaceMeansDefaultsInMemory) {
    std::filesystem::create_directory(path_);
    expectMemoryOnly();
}

TEST_F(QtPreferencesWithoutAFileTest, AFileOfExcessiveSizeMeansDefaultsInMemory) {
    config_.write(file, "[General]\ndayStartHour=3\n");
    std::filesystem::resize_file(path_, std::uintmax_t{1} << 40);  // takes no space
    expectMemoryOnly();
    EXPECT_EQ(std::filesystem::file_size(path_), std::uintmax_t{1} << 40);
}

TEST_F(QtPreferencesWithoutAFileTest, AMissingFileIsMade) {
    preferences().setInteger("dayStartHour", 5);
    startAgain();
    EXPECT_EQ(preferences().integer("dayStartHour"), 5);
}

}  // namespace
}  // namespace tidewatch::platform
