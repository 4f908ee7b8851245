#include "core/frontmost_rule.h"

#include <gtest/gtest.h>

#include "platform/fake/fake_workspace.h"

namespace tidewatch {
namespace {

struct FrontmostRule : testing::Test {
    platform::FakeWorkspace workspace;
};

TEST_F(FrontmostRule, NoApplicationInFrontBooksNothing) {
    EXPECT_EQ(bookableApplication(workspace), std::nullopt);
}

TEST_F(FrontmostRule, AnApplicationWithoutAnIdentifierIsNeverBooked) {
    workspace.setFrontmost(AppId(""));
    EXPECT_EQ(bookableApplication(workspace), std::nullopt);
}

TEST_F(FrontmostRule, TheProgramsOwnWindowsAreNotBooked) {
    workspace.setFrontmost(AppId("com.brightlooms.tidewatch"));
    EXPECT_EQ(bookableApplication(workspace), std::nullopt);
}

TEST_F(FrontmostRule, AnyOtherIdentifierIsBookedAsItIs) {
    workspace.setFrontmost(AppId("com.brightlooms.tidewatch.helper"));
    EXPECT_EQ(bookableApplication(workspace), AppId("com.brightlooms.tidewatch.helper"));
}

}  // namespace
}  // namespace tidewatch
