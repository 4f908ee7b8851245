#include "platform/posix/directory_lock.h"

#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <filesystem>
#include <memory>

#include "platform/fake/fake_log.h"
#include "platform/posix/posix_file_system.h"
#include "tests/support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

namespace fs = std::filesystem;
using State = FileLock::State;
using testing::IsEmpty;
using testing::SizeIs;

mode_t modeOf(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(::lstat(path.c_str(), &status), 0) << path;
    return status.st_mode & 07777;
}

void makeSocket(const std::string& path) {
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(path.size(), sizeof address.sun_path);
    std::ranges::copy(path, address.sun_path);
    ASSERT_EQ(::bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ::close(descriptor);
}

class DirectoryLockTest : public testing::Test {
protected:
    DirectoryLockTest() { fs::create_directory(data_); }

    test::TemporaryDirectory home_;
    const std::string data_ = home_.path() + "/.tidewatch";
    FakeLog log_{[](const std::string& complaint) { ADD_FAILURE() << complaint; }};
    DirectoryLock lock_{log_};
};

TEST_F(DirectoryLockTest, OneProcessHasTheDirectory) {
    EXPECT_EQ(lock_.take(data_), State::held);
    EXPECT_TRUE(lock_.isHeld());
    EXPECT_EQ(DirectoryLock(log_).take(data_), State::heldByAnother);
    EXPECT_EQ(lock_.ensure(), RecordLock::held);
}

TEST_F(DirectoryLockTest, ALockThatWasDeletedIsMadeAgainBeforeAWrite) {
    ASSERT_EQ(lock_.take(data_), State::held);
    fs::remove(data_ + "/lock");
    EXPECT_FALSE(lock_.isHeld());
    EXPECT_EQ(lock_.ensure(), RecordLock::held);
    EXPECT_EQ(DirectoryLock(log_).take(data_), State::heldByAnother);
}

TEST_F(DirectoryLockTest, ADirectoryThatWasRemovedIsMadeAgainWithItsLock) {
    ASSERT_EQ(lock_.take(data_), State::held);
    fs::remove_all(data_);
    EXPECT_EQ(lock_.ensure(), RecordLock::held);
    EXPECT_EQ(modeOf(data_), 0700u);
    EXPECT_EQ(DirectoryLock(log_).take(data_), State::heldByAnother);
}

TEST_F(DirectoryLockTest, AnUnheldLockInPlaceOfTheOldOneIsTaken) {
    ASSERT_EQ(lock_.take(data_), State::held);
    fs::remove(data_ + "/lock");
    home_.write(".tidewatch/lock", "");
    EXPECT_EQ(lock_.ensure(), RecordLock::held);
    EXPECT_EQ(DirectoryLock(log_).take(data_), State::heldByAnother);
}

TEST_F(DirectoryLockTest, AnotherProcessThatWasQuickerHasTheDirectoryUntilItEndsAndThatIsSaidOnce) {
    ASSERT_EQ(lock_.take(data_), State::held);
    fs::remove(data_ + "/lock");
    auto other = std::make_unique<DirectoryLock>(log_);
    ASSERT_EQ(other->take(data_), State::held);
    log_.expectWarning("another instance has taken " + data_);
    EXPECT_EQ(lock_.ensure(), RecordLock::heldByAnother);
    EXPECT_EQ(lock_.ensure(), RecordLock::heldByAnother);
    EXPECT_EQ(other->ensure(), RecordLock::held);
    EXPECT_THAT(log_.warnings(), SizeIs(1));

    other.reset();
    EXPECT_EQ(lock_.ensure(), RecordLock::held);
    EXPECT_EQ(lock_.ensure(), RecordLock::held);
    EXPECT_THAT(log_.infos(), SizeIs(1));
}

TEST_F(DirectoryLockTest, TheStoresFileSystemAsksForTheLock) {
    PosixFileSystem files(home_.path(), &lock_);
    ASSERT_EQ(lock_.take(data_), State::held);
    EXPECT_EQ(files.ensureRecordLock(data_), RecordLock::held);
    fs::remove(data_ + "/lock");
    DirectoryLock other(log_);
    ASSERT_EQ(other.take(data_), State::held);
    log_.expectWarning("another instance");
    EXPECT_EQ(files.ensureRecordLock(data_), RecordLock::heldByAnother);
}

TEST_F(DirectoryLockTest, ALockThatIsALinkToNowhereLeavesTheDirectoryOurs) {
    fs::create_symlink(home_.path() + "/none/lock", data_ + "/lock");
    EXPECT_EQ(lock_.take(data_), State::unavailable);
    EXPECT_EQ(lock_.ensure(), RecordLock::held);
    EXPECT_EQ(lock_.ensure(), RecordLock::held);
    EXPECT_THAT(log_.warnings(), IsEmpty());
}

TEST_F(DirectoryLockTest, TheCompanionIsRestoredWhileTheLockIsHeld) {
    ASSERT_EQ(lock_.take(data_), State::held);
    int restored = 0;
    lock_.watchCompanion(data_ + "/socket", [&] {
        ++restored;
        home_.write(".tidewatch/socket", "");
    });
    static_cast<void>(lock_.ensure());
    static_cast<void>(lock_.ensure());
    EXPECT_EQ(restored, 1);
    fs::remove_all(data_);
    static_cast<void>(lock_.ensure());
    EXPECT_EQ(restored, 2);
}

TEST_F(DirectoryLockTest, PermissionsOfTheDirectoryAndItsFilesAreRestricted) {
    home_.write(".tidewatch/today.json", "{}");
    home_.write(".tidewatch/notes.txt", "");
    home_.write("elsewhere.json", "{}");
    fs::create_symlink("../elsewhere.json", data_ + "/apps.json");
    fs::create_directory(data_ + "/folder");
    for (const auto* name : {"/.tidewatch/today.json", "/elsewhere.json", "/.tidewatch/notes.txt"}) {
        ASSERT_EQ(::chmod((home_.path() + name).c_str(), 0664), 0);
    }
    ASSERT_EQ(::chmod(data_.c_str(), 0755), 0);
    ASSERT_EQ(lock_.take(data_), State::held);
    EXPECT_EQ(modeOf(data_), 0700u);
    EXPECT_EQ(modeOf(data_ + "/today.json"), 0600u);
    EXPECT_EQ(modeOf(data_ + "/notes.txt"), 0600u);
    EXPECT_EQ(modeOf(data_ + "/lock"), 0600u);
    EXPECT_EQ(modeOf(home_.path() + "/elsewhere.json"), 0664u) << "a link's target is the user's own affair";
}

TEST_F(DirectoryLockTest, OnlyLeftoversOfKilledProcessesAreRemoved) {
    for (const auto* name : {"today.json.tmp", "apps.json", "apps.json.damaged-2026-01-15", "my.tmp"}) {
        home_.write(".tidewatch/" + std::string(name), "x");
    }
    fs::create_directory(data_ + "/.aZ09bc");
    makeSocket(data_ + "/.aZ09bc/s");
    fs::create_directory(data_ + "/.empty1");
    home_.write(".tidewatch/.mine12/photo", "x");
    fs::create_directory(data_ + "/.longer-name");
    ASSERT_EQ(lock_.take(data_), State::held);
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(data_)) names.push_back(entry.path().filename());
    EXPECT_THAT(names, testing::UnorderedElementsAre("lock", "apps.json", "apps.json.damaged-2026-01-15",
                                                     "my.tmp", ".mine12", ".longer-name"));
}

TEST_F(DirectoryLockTest, UnderAnothersLockNothingIsRemoved) {
    DirectoryLock other(log_);
    ASSERT_EQ(other.take(data_), State::held);
    home_.write(".tidewatch/today.json.tmp", "half");
    EXPECT_EQ(lock_.take(data_), State::heldByAnother);
    EXPECT_TRUE(home_.exists(".tidewatch/today.json.tmp"));
}

}  // namespace
}  // namespace tidewatch::platform
