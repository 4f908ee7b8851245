#include "core/frontmost_rule.h"

#include <gtest/gtest.h>

#include "platform/fake/fake_frontmost_application.h"

namespace tidewatch {
namespace {

struct FrontmostRule : testing::Test {
    platform::FakeFrontmostApplication frontmost;
};

TEST_F(FrontmostRule, NoApplicationInFrontBooksNothing) {
    EXPECT_EQ(bookableApplication(frontmost), std::nullopt);
}

TEST_F(FrontmostRule, AnApplicationWithoutAnIdentifierIsNeverBooked) {
    frontmost.set(AppId(""));
    EXPECT_EQ(bookableApplication(frontmost), std::nullopt);
}

TEST_F(FrontmostRule, TheProgramsOwnWindowsAreNotBooked) {
    frontmost.set(AppId("com.brightlooms.tidewatch"));
    EXPECT_EQ(bookableApplication(frontmost), std::nullopt);
}

TEST_F(FrontmostRule, AnyOtherIdentifierIsBookedAsItIs) {
    frontmost.set(AppId("com.brightlooms.tidewatch.helper"));
    EXPECT_EQ(bookableApplication(frontmost), AppId("com.brightlooms.tidewatch.helper"));
}

}  // namespace
}  // namespace tidewatch
