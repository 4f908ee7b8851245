#include "platform/freedesktop/autostart_login_item.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/posix/posix_file_system.h"
#include "support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

const std::string entry = "autostart/com.brightlooms.tidewatch.desktop";

class AutostartLoginItemTest : public testing::Test {
protected:
    test::TemporaryDirectory config_;
    PosixFileSystem files_;
    AutostartLoginItem item_{files_, config_.path(), "/opt/tide \"w\"/tidewatch"};
};

TEST_F(AutostartLoginItemTest, IsNotEnabledOnAFreshSystem) {
    EXPECT_FALSE(item_.isEnabled());
}

TEST_F(AutostartLoginItemTest, RegisteringWritesAnEntryThatStartsTheProgram) {
    EXPECT_TRUE(item_.registerItem().ok());
    EXPECT_TRUE(item_.isEnabled());
    EXPECT_NE(config_.read(entry).find("Exec=\"/opt/tide \\\\\"w\\\\\"/tidewatch\"\n"), std::string::npos)
        << config_.read(entry);
}

TEST_F(AutostartLoginItemTest, TheEntryStartsNothingOnceTheProgramIsUninstalled) {
    EXPECT_TRUE(item_.registerItem().ok());
    EXPECT_THAT(config_.read(entry), testing::HasSubstr("\nTryExec=/opt/tide \"w\"/tidewatch\n"));
}

TEST_F(AutostartLoginItemTest, UnregisteringTakesTheEntryAway) {
    EXPECT_TRUE(item_.registerItem().ok());
    EXPECT_TRUE(item_.unregisterItem().ok());
    EXPECT_FALSE(config_.exists(entry));
    EXPECT_TRUE(item_.unregisterItem().ok());
}

TEST_F(AutostartLoginItemTest, AnEntryThatTheDesktopSwitchedOffIsNotEnabled) {
    config_.write(entry, "[Desktop Entry]\nHidden=true\n");
    EXPECT_FALSE(item_.isEnabled());
    config_.write(entry, "[Desktop Entry]\nX-GNOME-Autostart-enabled=false\n");
    EXPECT_FALSE(item_.isEnabled());
}

TEST_F(AutostartLoginItemTest, AFolderThatCannotBeMadeIsAnError) {
    config_.write("autostart", "a file stands in the way");
    EXPECT_FALSE(item_.registerItem().ok());
    EXPECT_FALSE(item_.isEnabled());
}

}  // namespace
}  // namespace tidewatch::platform
