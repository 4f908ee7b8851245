#include "platform/posix/stderr_log.h"

#include <gtest/gtest.h>

namespace tidewatch::platform {
namespace {

TEST(StderrLog, WritesOneLineAMessage) {
    testing::internal::CaptureStderr();
    StderrLog log;
    log.warning("Tidewatch: failed to flush daily store: open: No space left on device");
    log.info("two\nlines");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "Tidewatch: failed to flush daily store: open: No space left on device\ntwo lines\n");
}

}  // namespace
}  // namespace tidewatch::platform
