#include "platform/freedesktop/session_probes.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "platform/freedesktop/bus_address.h"
#include "support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

using namespace std::chrono_literals;

/// A socket that accepts connections; with a reply, it sends that after the client has sent something.
class Listener final {
public:
    explicit Listener(const std::string& address, std::string words = "") : words_(std::move(words)) {
        const auto name = socketOfBus(address);
        descriptor_ = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        EXPECT_EQ(::bind(descriptor_, reinterpret_cast<const sockaddr*>(&name->name), name->size), 0);
        EXPECT_EQ(::listen(descriptor_, 5), 0);
        if (!words_.empty()) thread_ = std::thread([this] { speakOnce(); });
    }
    ~Listener() {
        if (thread_.joinable()) thread_.join();
        ::close(descriptor_);
    }

private:
    void speakOnce() {
        const int client = ::accept(descriptor_, nullptr, nullptr);
        char heard[64];
        if (::recv(client, heard, sizeof heard, 0) > 0)
            ::send(client, words_.data(), words_.size(), MSG_NOSIGNAL);
        ::close(client);
    }

    const std::string words_;
    int descriptor_ = -1;
    std::thread thread_;
};

class SessionProbesTest : public testing::Test {
protected:
    test::TemporaryDirectory folder_;
    const std::string bus_ = "unix:path=" + folder_.path() + "/bus";
    const std::string manager_ = "unix/here:" + folder_.path() + "/bus";
};

TEST_F(SessionProbesTest, ABusThatListsItsMechanismsIsResponsive) {
    Listener bus(bus_, "REJECTED EXTERNAL\r\n");
    EXPECT_TRUE(isBusResponsive(bus_, 30s));
}

TEST_F(SessionProbesTest, ASilentBusIsNot) {
    Listener bus(bus_);
    EXPECT_FALSE(isBusResponsive(bus_, 50ms));
}

TEST_F(SessionProbesTest, AMissingBusIsNot) {
    EXPECT_FALSE(isBusResponsive(bus_, 30s));
    EXPECT_FALSE(isBusResponsive("tcp:host=127.0.0.1,port=1", 30s));
}

TEST_F(SessionProbesTest, OnlyResponsiveSessionManagersAreKept) {
    Listener manager(bus_, std::string("\0\1\0\0\0\0\0\0", 8));
    EXPECT_EQ(responsiveSessionManagers("local/here:@/tmp/.ICE-unix/none-of-that-name," + manager_, 30s),
              manager_);
}

TEST_F(SessionProbesTest, ASilentOneIsNot) {
    Listener manager(bus_);
    EXPECT_EQ(responsiveSessionManagers(manager_, 50ms), "");
}

TEST_F(SessionProbesTest, ARemoteOneIsNotContacted) {
    EXPECT_EQ(responsiveSessionManagers("tcp/127.0.0.1:1", 30s), "");
    EXPECT_EQ(responsiveSessionManagers("nonsense,,", 30s), "");
}

}  // namespace
}  // namespace tidewatch::platform
