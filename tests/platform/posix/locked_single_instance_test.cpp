#include "platform/posix/locked_single_instance.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <memory>
#include <thread>

#include "platform/fake/fake_log.h"
#include "support/temporary_directory.h"
#include "tests/platform/posix/no_descriptors_left.h"

namespace tidewatch::platform {
namespace {

using namespace std::chrono_literals;

// A start of the program as far as it matters here: the lock and its owner.
struct Start {
    explicit Start(Log& log, std::chrono::milliseconds timeout = LockedSingleInstance::defaultTimeout,
                   std::chrono::milliseconds pause = 50ms)
        : lock(log), instance(lock, log, timeout, pause) {}

    DirectoryLock lock;
    LockedSingleInstance instance;
};

class LockedSingleInstanceTest : public testing::Test {
protected:
    InstanceClaim claimFromAnotherThread(const std::string& directory) {
        auto claim = InstanceClaim::first;
        std::atomic<bool> done = false;
        std::thread other([&] {
            Start second(log_);
            claim = second.instance.claim(directory);
            done = true;
        });
        while (!done) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        other.join();
        return claim;
    }
    InstanceClaim claimFromAnotherThread() { return claimFromAnotherThread(directory_.path()); }

    int argc_ = 0;
    QCoreApplication application_{argc_, nullptr};
    test::TemporaryDirectory directory_;
    FakeLog log_{[](const std::string& complaint) { ADD_FAILURE() << complaint; }};
};

TEST_F(LockedSingleInstanceTest, TheFirstStartHasTheDirectoryToItself) {
    Start first(log_);
    EXPECT_EQ(first.instance.claim(directory_.path()), InstanceClaim::first);
}

TEST_F(LockedSingleInstanceTest, ASecondStartAsksTheFirstToReopen) {
    Start first(log_);
    int reopened = 0;
    first.instance.onReopen([&] { ++reopened; });
    ASSERT_EQ(first.instance.claim(directory_.path()), InstanceClaim::first);
    EXPECT_EQ(claimFromAnotherThread(), InstanceClaim::handedOver);
    EXPECT_EQ(reopened, 1);
}

TEST_F(LockedSingleInstanceTest, ASecondStartIsAnsweredOnceThereAreDescriptorsAgain) {
    Start first(log_);
    ASSERT_EQ(first.instance.claim(directory_.path()), InstanceClaim::first);
    auto shortage = std::make_unique<test::NoDescriptorsLeft>();
    std::atomic<bool> done = false;
    bool answered = false;
    std::thread second([&] {
        answered = ReopenSocket::askIn(directory_.path(), 10min);
        done = true;
    });
    while (shortage->refused() == 0) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    for (const auto end = std::chrono::steady_clock::now() + 400ms; std::chrono::steady_clock::now() < end;) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    EXPECT_LT(shortage->refused(), 20) << "asked again and again";
    shortage.reset();
    while (!done) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    second.join();
    EXPECT_TRUE(answered);
}

TEST_F(LockedSingleInstanceTest, ListeningIsRetriedAndItsFailureLoggedOnce) {
    const auto place = directory_.path() + "/reopen.socket";
    directory_.write("reopen.socket/in-the-way", "");
    log_.expectWarning("a second start cannot be answered");
    Start first(log_, LockedSingleInstance::defaultTimeout, 1ms);
    ASSERT_EQ(first.instance.claim(directory_.path()), InstanceClaim::first);
    for (int tries = 0; tries < 5; ++tries) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    std::filesystem::remove_all(place);
    while (!directory_.exists("reopen.socket")) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    EXPECT_EQ(claimFromAnotherThread(), InstanceClaim::handedOver);
}

TEST_F(LockedSingleInstanceTest, AStartAfterTheEndOfTheFirstIsTheFirst) {
    auto first = std::make_unique<Start>(log_);
    ASSERT_EQ(first->instance.claim(directory_.path()), InstanceClaim::first);
    first.reset();
    EXPECT_FALSE(directory_.exists("reopen.socket"));
    Start next(log_);
    EXPECT_EQ(next.instance.claim(directory_.path()), InstanceClaim::first);
}

TEST_F(LockedSingleInstanceTest, ALockWithoutAnAnswerIsDeniedInTheEnd) {
    FileLock held(directory_.path() + "/lock");
    Start second(log_, 200ms);
    EXPECT_EQ(second.instance.claim(directory_.path()), InstanceClaim::denied);
}

TEST_F(LockedSingleInstanceTest, AnInstanceThatHoldsTheLockAndIsStuckIsDeniedInTheEnd) {
    FileLock held(directory_.path() + "/lock");
    const auto listening = ReopenSocket::listenIn(directory_.path());
    ASSERT_TRUE(listening);
    Start second(log_, 200ms);
    EXPECT_EQ(second.instance.claim(directory_.path()), InstanceClaim::denied);
}

TEST_F(LockedSingleInstanceTest, AStartWaitsForAnInstanceThatIsJustEnding) {
    auto lock = std::make_unique<FileLock>(directory_.path() + "/lock");
    std::thread ending([&] {
        std::this_thread::sleep_for(200ms);
        lock.reset();
    });
    Start next(log_, 60s);
    EXPECT_EQ(next.instance.claim(directory_.path()), InstanceClaim::first);
    ending.join();
}

TEST_F(LockedSingleInstanceTest, AnInstanceThatEndsWhileItIsAskedIsWaitedForToo) {
    auto lock = std::make_unique<FileLock>(directory_.path() + "/lock");
    auto socket = std::move(ReopenSocket::listenIn(directory_.path())).value();
    std::thread ending([&] {
        std::this_thread::sleep_for(200ms);
        socket.reset();
        lock.reset();
    });
    Start next(log_, 60s);
    EXPECT_EQ(next.instance.claim(directory_.path()), InstanceClaim::first);
    ending.join();
}

TEST_F(LockedSingleInstanceTest, AnInstanceThatEndsInTheMomentOfTheQuestionDoesNotAnswer) {
    auto first = std::make_unique<Start>(log_);
    ASSERT_EQ(first->instance.claim(directory_.path()), InstanceClaim::first);
    bool answered = true;
    std::thread asking([&] { answered = ReopenSocket::askIn(directory_.path(), 60s); });
    // A single turn of the loop, like a program's last one.
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    first.reset();
    asking.join();
    EXPECT_FALSE(answered);
}

TEST_F(LockedSingleInstanceTest, WithoutADirectoryTheProgramStartsAndSaysSo) {
    log_.expectWarning("no lock could be made");
    Start start(log_);
    EXPECT_EQ(start.instance.claim(directory_.path() + "/missing"), InstanceClaim::first);
}

TEST_F(LockedSingleInstanceTest, ADirectoryWithANameLongerThanASocketsMayBeIsNoHindrance) {
    auto deep = directory_.path();
    while (deep.size() < 300) deep += "/a-folder-with-a-rather-long-name";
    std::filesystem::create_directories(deep);
    Start first(log_);
    int reopened = 0;
    first.instance.onReopen([&] { ++reopened; });
    ASSERT_EQ(first.instance.claim(deep), InstanceClaim::first);
    EXPECT_EQ(claimFromAnotherThread(deep), InstanceClaim::handedOver);
    EXPECT_EQ(reopened, 1);
    EXPECT_TRUE(std::filesystem::is_socket(deep + "/reopen.socket"));
}

TEST_F(LockedSingleInstanceTest, ADirectoryWhoseNameIsNotUtf8IsNoHindrance) {
    const auto folder = directory_.path() + "/caf\xE9";
    std::filesystem::create_directory(folder);
    Start first(log_);
    ASSERT_EQ(first.instance.claim(folder), InstanceClaim::first);
    EXPECT_EQ(claimFromAnotherThread(folder), InstanceClaim::handedOver);
    EXPECT_TRUE(directory_.exists("caf\xE9/reopen.socket"));
}

TEST_F(LockedSingleInstanceTest, TheSocketIsMadeAgainWhenItsDirectoryWasRemoved) {
    const auto folder = directory_.path() + "/data";
    std::filesystem::create_directory(folder);
    Start first(log_);
    ASSERT_EQ(first.instance.claim(folder), InstanceClaim::first);
    std::filesystem::remove_all(folder);
    // On a thread of its own, like a write.
    std::thread([&] { EXPECT_EQ(first.lock.ensure(), RecordLock::held); }).join();
    EXPECT_EQ(claimFromAnotherThread(folder), InstanceClaim::handedOver);
}

TEST_F(LockedSingleInstanceTest, WhereNoSocketCanBeMadeTheProgramStartsAndSaysSoOnce) {
    std::filesystem::create_directories(directory_.path() + "/reopen.socket/in-the-way");
    log_.expectWarning("a second start cannot be answered: Address already in use");
    Start first(log_);
    EXPECT_EQ(first.instance.claim(directory_.path()), InstanceClaim::first);
    EXPECT_EQ(first.lock.ensure(), RecordLock::held);
    QCoreApplication::processEvents();
}

}  // namespace
}  // namespace tidewatch::platform
