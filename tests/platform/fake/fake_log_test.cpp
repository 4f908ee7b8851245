#include "platform/fake/fake_log.h"

#include <gmock/gmock.h>

#include <optional>

namespace tidewatch::platform {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct FakeLogTest : testing::Test {
    std::vector<std::string> complaints;
    std::optional<FakeLog> log{std::in_place,
                               [this](const std::string& text) { complaints.push_back(text); }};
};

TEST_F(FakeLogTest, FailsForAnUnexpectedWarning) {
    log->warning("disk on fire");
    EXPECT_THAT(complaints, ElementsAre(HasSubstr("disk on fire")));
}

TEST_F(FakeLogTest, AcceptsAnExpectedWarningOnce) {
    log->expectWarning("on fire");
    log->warning("disk on fire");
    EXPECT_THAT(complaints, IsEmpty());
    log->warning("disk on fire");
    EXPECT_EQ(complaints.size(), 1u);
}

TEST_F(FakeLogTest, FailsForAnExpectedWarningThatNeverCame) {
    log->expectWarning("on fire");
    log.reset();
    EXPECT_THAT(complaints, ElementsAre(HasSubstr("on fire")));
}

TEST_F(FakeLogTest, AcceptsInformation) {
    log->info("started");
    EXPECT_THAT(log->infos(), ElementsAre("started"));
    EXPECT_THAT(complaints, IsEmpty());
}

}  // namespace
}  // namespace tidewatch::platform
