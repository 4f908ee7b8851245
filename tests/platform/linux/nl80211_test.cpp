#include "platform/linux/nl80211.h"

#include <gtest/gtest.h>
#include <libmnl/libmnl.h>
#include <linux/genetlink.h>
#include <linux/nl80211.h>

#include <array>
#include <cstring>
#include <functional>
#include <string>

namespace tidewatch::platform {
namespace {

/// A message of the kernel, built with the library.
class Message final {
public:
    explicit Message(std::uint8_t command) {
        auto* made = mnl_nlmsg_put_header(buffer_.data());
        auto* body = static_cast<genlmsghdr*>(mnl_nlmsg_put_extra_header(made, sizeof(genlmsghdr)));
        body->cmd = command;
    }

    Message& text(int kind, const std::string& bytes) {
        mnl_attr_put(start(), static_cast<std::uint16_t>(kind), bytes.size(), bytes.data());
        return *this;
    }
    Message& number8(int kind, std::uint8_t value) {
        mnl_attr_put_u8(start(), static_cast<std::uint16_t>(kind), value);
        return *this;
    }
    Message& number16(int kind, std::uint16_t value) {
        mnl_attr_put_u16(start(), static_cast<std::uint16_t>(kind), value);
        return *this;
    }
    Message& number32(int kind, std::uint32_t value) {
        mnl_attr_put_u32(start(), static_cast<std::uint16_t>(kind), value);
        return *this;
    }
    Message& nested(int kind, const std::function<void(Message&)>& fill) {
        auto* outer = mnl_attr_nest_start(start(), static_cast<std::uint16_t>(kind));
        fill(*this);
        mnl_attr_nest_end(start(), outer);
        return *this;
    }
    /// As if the kernel had sent no more than this.
    Message& cutTo(std::uint32_t length) {
        start()->nlmsg_len = length;
        return *this;
    }

    [[nodiscard]] const nlmsghdr& header() const {
        return *reinterpret_cast<const nlmsghdr*>(buffer_.data());
    }

private:
    nlmsghdr* start() { return reinterpret_cast<nlmsghdr*>(buffer_.data()); }

    alignas(nlmsghdr) std::array<char, 4096> buffer_{};
};

Message interface() {
    Message message(NL80211_CMD_NEW_INTERFACE);
    message.number32(NL80211_ATTR_IFINDEX, 3).text(NL80211_ATTR_IFNAME, std::string("wlan0\0", 6));
    return message;
}

Message station(std::int8_t signal) {
    Message message(NL80211_CMD_NEW_STATION);
    message.number32(NL80211_ATTR_IFINDEX, 3).nested(NL80211_ATTR_STA_INFO, [&](Message& info) {
        info.number32(NL80211_STA_INFO_INACTIVE_TIME, 40)
            .number8(NL80211_STA_INFO_SIGNAL, static_cast<std::uint8_t>(signal))
            .number8(NL80211_STA_INFO_SIGNAL_AVG, static_cast<std::uint8_t>(-1));
    });
    return message;
}

TEST(Nl80211Messages, AFamilyTellsItsNumber) {
    Message message(CTRL_CMD_NEWFAMILY);
    message.text(CTRL_ATTR_FAMILY_NAME, std::string("nl80211\0", 8)).number16(CTRL_ATTR_FAMILY_ID, 31);
    EXPECT_EQ(familyNumber(message.header()), 31);
    EXPECT_FALSE(familyNumber(interface().header()));
}

TEST(Nl80211Messages, AConnectedInterfaceTellsItsNetwork) {
    for (const std::string name : {"Casa", "Café ☕", "a b", "\xff\xfe"}) {
        EXPECT_EQ(networkName(interface().text(NL80211_ATTR_SSID, name).header()), name);
    }
}

TEST(Nl80211Messages, AnInterfaceThatIsNotConnectedTellsNone) {
    EXPECT_FALSE(networkName(interface().header()));
    // As the kernel tells a hidden network.
    EXPECT_FALSE(networkName(interface().text(NL80211_ATTR_SSID, "").header()));
}

TEST(Nl80211Messages, AStationTellsItsSignal) {
    EXPECT_EQ(stationSignal(station(-55).header()), -55);
    EXPECT_EQ(stationSignal(station(-128).header()), -128);
    EXPECT_EQ(stationSignal(station(0).header()), 0);
}

TEST(Nl80211Messages, ADriverThatTellsNoSignalHasNone) {
    Message message(NL80211_CMD_NEW_STATION);
    message.nested(NL80211_ATTR_STA_INFO,
                   [](Message& info) { info.number32(NL80211_STA_INFO_INACTIVE_TIME, 40); });
    EXPECT_FALSE(stationSignal(message.header()));
    EXPECT_FALSE(stationSignal(interface().header()));
}

TEST(Nl80211Messages, AttributesOfAnotherSizeAreNotRead) {
    EXPECT_FALSE(familyNumber(Message(CTRL_CMD_NEWFAMILY).number8(CTRL_ATTR_FAMILY_ID, 31).header()));
    Message message(NL80211_CMD_NEW_STATION);
    message.nested(NL80211_ATTR_STA_INFO, [](Message& info) { info.text(NL80211_STA_INFO_SIGNAL, ""); });
    EXPECT_FALSE(stationSignal(message.header()));
}

// Every beginning of a message, as if it had been cut off there.
TEST(Nl80211Messages, TruncatedMessagesTellNothingWrong) {
    const auto whole = station(-55).header().nlmsg_len;
    for (std::uint32_t length = sizeof(nlmsghdr); length < whole; ++length) {
        const auto signal = stationSignal(station(-55).cutTo(length).header());
        EXPECT_TRUE(!signal || *signal == -55) << length;
    }
    const auto named = interface().text(NL80211_ATTR_SSID, "Casa").header().nlmsg_len;
    for (std::uint32_t length = sizeof(nlmsghdr); length < named; ++length) {
        EXPECT_FALSE(networkName(interface().text(NL80211_ATTR_SSID, "Casa").cutTo(length).header()))
            << length;
    }
}

TEST(Nl80211Messages, ANestedSizeBeyondTheMessageIsNotFollowed) {
    auto message = station(-55);
    const auto& header = message.header();
    // The size of the nested attribute, which is the last one.
    auto bytes = std::string(reinterpret_cast<const char*>(&header), header.nlmsg_len);
    const auto place = bytes.size() - 4 - 8 - 8 - 8;
    const std::uint16_t beyond = 4000;
    std::memcpy(bytes.data() + place, &beyond, sizeof beyond);
    EXPECT_FALSE(stationSignal(*reinterpret_cast<const nlmsghdr*>(bytes.data())));
}

TEST(Nl80211, WhatIsNotWirelessHasNoLink) {
    Nl80211 subsystem;
    EXPECT_FALSE(subsystem.link("lo"));
    EXPECT_FALSE(subsystem.link("none such"));
    EXPECT_FALSE(subsystem.link("lo"));
}

}  // namespace
}  // namespace tidewatch::platform
