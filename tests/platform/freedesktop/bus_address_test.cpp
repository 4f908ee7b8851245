#include "platform/freedesktop/bus_address.h"

#include <gtest/gtest.h>

namespace tidewatch::platform {
namespace {

TEST(BusAddressTest, APathIsTakenWithItsEscapes) {
    const auto socket = socketOfBus("unix:path=/run/user/1000/a%20bus,guid=0123");
    ASSERT_TRUE(socket);
    EXPECT_STREQ(socket->name.sun_path, "/run/user/1000/a bus");
}

TEST(BusAddressTest, AnAbstractNameBeginsWithAZeroByte) {
    const auto socket = socketOfBus("unix:guid=0123,abstract=/tmp/dbus-x");
    ASSERT_TRUE(socket);
    EXPECT_EQ(socket->name.sun_path[0], '\0');
    EXPECT_EQ(std::string(socket->name.sun_path + 1, 11), "/tmp/dbus-x");
    EXPECT_EQ(socket->size, offsetof(sockaddr_un, sun_path) + 12);
}

TEST(BusAddressTest, OfSeveralTheFirstOnThisMachineIsTaken) {
    const auto socket = socketOfBus("tcp:host=example.org,port=1;unix:path=/a;unix:path=/b");
    ASSERT_TRUE(socket);
    EXPECT_STREQ(socket->name.sun_path, "/a");
}

TEST(BusAddressTest, OtherTransportsAreRejected) {
    EXPECT_FALSE(socketOfBus(""));
    EXPECT_FALSE(socketOfBus("tcp:host=127.0.0.1,port=5"));
    EXPECT_FALSE(socketOfBus("unixexec:path=/bin/true"));
    EXPECT_FALSE(socketOfBus("autolaunch:"));
    EXPECT_FALSE(socketOfBus("unix:path="));
    EXPECT_FALSE(socketOfBus("unix:path=/" + std::string(200, 'x')));
}

}  // namespace
}  // namespace tidewatch::platform
