#include "platform/linux/locked_running_instance.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <atomic>
#include <memory>
#include <thread>

#include "platform/fake/fake_log.h"
#include "support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

class LockedRunningInstanceTest : public testing::Test {
protected:
    InstanceClaim claimFromAnotherThread() {
        auto claim = InstanceClaim::first;
        std::atomic<bool> done = false;
        std::thread other([&] {
            LockedRunningInstance second(log_);
            claim = second.claim(directory_.path());
            done = true;
        });
        while (!done) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        other.join();
        return claim;
    }

    int argc_ = 0;
    QCoreApplication application_{argc_, nullptr};
    test::TemporaryDirectory directory_;
    FakeLog log_{[](const std::string& complaint) { ADD_FAILURE() << complaint; }};
};

TEST_F(LockedRunningInstanceTest, TheFirstStartHasTheDirectoryToItself) {
    LockedRunningInstance first(log_);
    EXPECT_EQ(first.claim(directory_.path()), InstanceClaim::first);
}

TEST_F(LockedRunningInstanceTest, ASecondStartAsksTheFirstToReopen) {
    LockedRunningInstance first(log_);
    int reopened = 0;
    first.onReopen([&] { ++reopened; });
    ASSERT_EQ(first.claim(directory_.path()), InstanceClaim::first);
    EXPECT_EQ(claimFromAnotherThread(), InstanceClaim::handedOver);
    EXPECT_EQ(reopened, 1);
}

TEST_F(LockedRunningInstanceTest, AStartAfterTheEndOfTheFirstIsTheFirst) {
    auto first = std::make_unique<LockedRunningInstance>(log_);
    ASSERT_EQ(first->claim(directory_.path()), InstanceClaim::first);
    first.reset();
    LockedRunningInstance next(log_);
    EXPECT_EQ(next.claim(directory_.path()), InstanceClaim::first);
}

TEST_F(LockedRunningInstanceTest, ALockWithoutAnAnswerIsDenied) {
    FileLock held(directory_.path() + "/lock");
    LockedRunningInstance second(log_);
    EXPECT_EQ(second.claim(directory_.path()), InstanceClaim::denied);
}

TEST_F(LockedRunningInstanceTest, WithoutADirectoryTheProgramStartsAndSaysSo) {
    log_.expectWarning("no lock could be made");
    LockedRunningInstance instance(log_);
    EXPECT_EQ(instance.claim(directory_.path() + "/missing"), InstanceClaim::first);
}

}  // namespace
}  // namespace tidewatch::platform
