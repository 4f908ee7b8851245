#include "platform/freedesktop/bus_message.h"

#include <gtest/gtest.h>

namespace tidewatch::platform {
namespace {

/// Hello, as a client of the session bus sends it.
std::string hello() {
    using namespace std::string_literals;
    return "l\1\0\1\0\0\0\0\1\0\0\0\x6e\0\0\0"s
           "\1\1o\0\x15\0\0\0/org/freedesktop/DBus\0\0\0"s
           "\6\1s\0\x14\0\0\0org.freedesktop.DBus\0\0\0\0"s
           "\2\1s\0\x14\0\0\0org.freedesktop.DBus\0\0\0\0"s
           "\3\1s\0\5\0\0\0Hello\0\0\0"s;
}

TEST(BusMessageTest, ACallHasItsDestinationAndMember) {
    const auto message = BusMessage::parse(hello());
    ASSERT_TRUE(message);
    EXPECT_EQ(message->type, BusMessage::Type::call);
    EXPECT_TRUE(message->wantsReply);
    EXPECT_EQ(message->serial, 1u);
    EXPECT_EQ(message->destination, "org.freedesktop.DBus");
    EXPECT_EQ(message->interface, "org.freedesktop.DBus");
    EXPECT_EQ(message->member, "Hello");
    EXPECT_EQ(message->answers, 0u);
}

TEST(BusMessageTest, ACallWithoutAReplyIsFlagged) {
    auto bytes = hello();
    bytes[2] = 1;
    EXPECT_FALSE(BusMessage::parse(bytes)->wantsReply);
}

TEST(BusMessageTest, TheSizeIsKnownFromSixteenBytesOn) {
    const auto bytes = hello();
    EXPECT_EQ(BusMessage::sizeAtFront(bytes.substr(0, 15)), 0u);
    EXPECT_EQ(BusMessage::sizeAtFront(bytes.substr(0, 16)), bytes.size());
    EXPECT_EQ(BusMessage::sizeAtFront(bytes + "more"), bytes.size());
}

TEST(BusMessageTest, NoPrefixOfAMessageIsParsed) {
    const auto bytes = hello();
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        EXPECT_FALSE(BusMessage::parse(bytes.substr(0, size))) << size;
    }
}

TEST(BusMessageTest, MalformedMessagesAreRejected) {
    EXPECT_FALSE(BusMessage::sizeAtFront("HTTP/1.1 400 Bad"));
    auto endless = hello();
    endless[7] = '\x7f';
    EXPECT_FALSE(BusMessage::sizeAtFront(endless));
    for (std::size_t at = 12; at < hello().size(); ++at) {
        for (const char damage : {'\0', '\1', '\x7f', '\xff'}) {
            auto bytes = hello();
            bytes[at] = damage;
            static_cast<void>(BusMessage::parse(bytes));  // must not read past the end
        }
    }
}

TEST(BusMessageTest, AnErrorAnswersItsCall) {
    const auto bytes = busError(77, "org.freedesktop.DBus.Error.NoReply", "no answer in time");
    EXPECT_EQ(BusMessage::sizeAtFront(bytes), bytes.size());
    const auto message = BusMessage::parse(bytes);
    ASSERT_TRUE(message);
    EXPECT_EQ(message->type, BusMessage::Type::error);
    EXPECT_EQ(message->answers, 77u);
    EXPECT_EQ(BusMessage::text(bytes), "no answer in time");
}

TEST(BusMessageTest, AReplyIsOneStringFromItsSender) {
    const auto bytes = busReply(8, ":1.4", "unix:path=/a");
    const auto message = BusMessage::parse(bytes);
    ASSERT_TRUE(message);
    EXPECT_EQ(message->type, BusMessage::Type::reply);
    EXPECT_EQ(message->sender, ":1.4");
    EXPECT_EQ(message->answers, 8u);
    EXPECT_EQ(BusMessage::text(bytes), "unix:path=/a");
    EXPECT_EQ(BusMessage::text(hello()), "");
}

}  // namespace
}  // namespace tidewatch::platform
