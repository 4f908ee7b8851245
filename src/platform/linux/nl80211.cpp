#include "platform/linux/nl80211.h"

#include <libmnl/libmnl.h>
#include <linux/genetlink.h>
#include <linux/nl80211.h>
#include <net/if.h>
#include <sys/socket.h>
#include <sys/time.h>

#include <array>
#include <cstddef>
#include <vector>

namespace tidewatch::platform {

namespace {

constexpr std::size_t bufferSize = 32 * 1024;
constexpr timeval patience{.tv_sec = 1, .tv_usec = 0};

struct Buffer {
    alignas(nlmsghdr) std::array<char, 1024> bytes{};
};

// The attribute of this kind among those in `size` bytes, if its content is of this type.
const nlattr* find(const void* attributes, std::size_t size, int kind, mnl_attr_data_type type) {
    const auto* end = static_cast<const std::byte*>(attributes) + size;
    const auto* each = static_cast<const nlattr*>(attributes);
    for (; mnl_attr_ok(each, static_cast<int>(end - reinterpret_cast<const std::byte*>(each)));
         each = mnl_attr_next(each)) {
        if (mnl_attr_get_type(each) == kind) return mnl_attr_validate(each, type) < 0 ? nullptr : each;
    }
    return nullptr;
}

const nlattr* find(const nlmsghdr& message, int kind, mnl_attr_data_type type) {
    constexpr auto offset = sizeof(genlmsghdr);
    const auto size = mnl_nlmsg_get_payload_len(&message);
    if (size < offset) return nullptr;
    return find(mnl_nlmsg_get_payload_offset(&message, offset), size - offset, kind, type);
}

nlmsghdr& request(Buffer& buffer, std::uint16_t family, std::uint8_t command, std::uint16_t flags = 0) {
    auto* header = mnl_nlmsg_put_header(buffer.bytes.data());
    header->nlmsg_type = family;
    header->nlmsg_flags = static_cast<std::uint16_t>(NLM_F_REQUEST | NLM_F_ACK | flags);
    auto* body = static_cast<genlmsghdr*>(mnl_nlmsg_put_extra_header(header, sizeof(genlmsghdr)));
    body->cmd = command;
    body->version = 1;
    return *header;
}

}  // namespace

std::optional<std::uint16_t> familyNumber(const nlmsghdr& message) {
    const auto* number = find(message, CTRL_ATTR_FAMILY_ID, MNL_TYPE_U16);
    return number ? std::optional(mnl_attr_get_u16(number)) : std::nullopt;
}

std::optional<std::string> networkName(const nlmsghdr& message) {
    const auto* name = find(message, NL80211_ATTR_SSID, MNL_TYPE_BINARY);
    if (!name || mnl_attr_get_payload_len(name) == 0) return std::nullopt;
    return std::string(static_cast<const char*>(mnl_attr_get_payload(name)), mnl_attr_get_payload_len(name));
}

std::optional<std::int64_t> stationSignal(const nlmsghdr& message) {
    const auto* station = find(message, NL80211_ATTR_STA_INFO, MNL_TYPE_NESTED);
    if (!station) return std::nullopt;
    const auto* signal = find(mnl_attr_get_payload(station), mnl_attr_get_payload_len(station),
                              NL80211_STA_INFO_SIGNAL, MNL_TYPE_U8);
    return signal ? std::optional<std::int64_t>(static_cast<std::int8_t>(mnl_attr_get_u8(signal)))
                  : std::nullopt;
}

void Nl80211::CloseSocket::operator()(mnl_socket* socket) const {
    mnl_socket_close(socket);
}

Nl80211::Nl80211() = default;
Nl80211::~Nl80211() = default;

bool Nl80211::connect() {
    if (family_) return true;
    socket_.reset(mnl_socket_open2(NETLINK_GENERIC, SOCK_CLOEXEC));
    if (!socket_ || mnl_socket_bind(socket_.get(), 0, MNL_SOCKET_AUTOPID) < 0) return false;
    ::setsockopt(mnl_socket_get_fd(socket_.get()), SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    Buffer buffer;
    auto& question = request(buffer, GENL_ID_CTRL, CTRL_CMD_GETFAMILY);
    mnl_attr_put_strz(&question, CTRL_ATTR_FAMILY_NAME, NL80211_GENL_NAME);
    std::optional<std::uint16_t> family;
    const bool isWhole = exchange(question, [&](const nlmsghdr& message) {
        if (!family) family = familyNumber(message);
    });
    if (isWhole) family_ = family;
    return family_.has_value();
}

bool Nl80211::exchange(nlmsghdr& request, const MessageVisitor& visit) {
    request.nlmsg_seq = ++sequence_;
    if (mnl_socket_sendto(socket_.get(), &request, request.nlmsg_len) < 0) return false;
    std::vector<char> buffer(bufferSize);
    while (true) {
        const auto received = mnl_socket_recvfrom(socket_.get(), buffer.data(), buffer.size());
        if (received <= 0) return false;
        auto length = static_cast<int>(received);
        for (const auto* message = reinterpret_cast<const nlmsghdr*>(buffer.data());
             mnl_nlmsg_ok(message, length); message = mnl_nlmsg_next(message, &length)) {
            // A late reply to a question that was given up.
            if (message->nlmsg_seq != sequence_) continue;
            if (message->nlmsg_type == NLMSG_DONE) return true;
            if (message->nlmsg_type == NLMSG_ERROR) {
                if (mnl_nlmsg_get_payload_len(message) < sizeof(nlmsgerr)) return false;
                return static_cast<const nlmsgerr*>(mnl_nlmsg_get_payload(message))->error == 0;
            }
            visit(*message);
        }
    }
}

std::optional<WirelessLink> Nl80211::link(const std::string& interfaceName) {
    const auto index = ::if_nametoindex(interfaceName.c_str());
    if (index == 0 || !connect()) return std::nullopt;
    std::optional<std::string> name;
    Buffer buffer;
    auto& interfaceQuestion = request(buffer, *family_, NL80211_CMD_GET_INTERFACE);
    mnl_attr_put_u32(&interfaceQuestion, NL80211_ATTR_IFINDEX, index);
    if (!exchange(interfaceQuestion, [&](const nlmsghdr& message) { name = networkName(message); })) {
        // The driver may have been unloaded, and its family renumbered.
        family_.reset();
        return std::nullopt;
    }
    if (!name) return std::nullopt;
    WirelessLink link{.networkName = *name};
    auto& stationQuestion = request(buffer, *family_, NL80211_CMD_GET_STATION, NLM_F_DUMP);
    mnl_attr_put_u32(&stationQuestion, NL80211_ATTR_IFINDEX, index);
    // Of one that is connected to a network there is one, the access point.
    static_cast<void>(exchange(stationQuestion, [&](const nlmsghdr& message) {
        if (!link.signal) link.signal = stationSignal(message);
    }));
    return link;
}

}  // namespace tidewatch::platform
