#pragma once

#include <linux/netlink.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/api/machine_counters.h"

struct mnl_socket;

namespace tidewatch::platform {

// What messages of the kernel say; nullopt if they do not, or are garbled.

/// The number of a message family, from the reply to a question for it.
[[nodiscard]] std::optional<std::uint16_t> familyNumber(const nlmsghdr& message);
/// The name of the network that an interface is connected to; bytes that need not be text.
[[nodiscard]] std::optional<std::string> networkName(const nlmsghdr& message);
/// The signal of a station that an interface sees, in dBm.
[[nodiscard]] std::optional<std::int64_t> stationSignal(const nlmsghdr& message);

/// Asks the kernel's wireless subsystem. May wait for a driver, a second at most. Not thread-safe.
class Nl80211 final {
public:
    Nl80211();
    ~Nl80211();
    Nl80211(const Nl80211&) = delete;
    Nl80211& operator=(const Nl80211&) = delete;

    /// The network of an interface; nullopt if it is not connected, not wireless, or the kernel does not
    /// tell.
    [[nodiscard]] std::optional<WirelessLink> link(const std::string& interfaceName);

private:
    struct CloseSocket {
        void operator()(mnl_socket* socket) const;
    };
    using MessageVisitor = std::function<void(const nlmsghdr& message)>;

    [[nodiscard]] bool connect();
    /// Returns whether the whole reply has been received.
    [[nodiscard]] bool exchange(nlmsghdr& request, const MessageVisitor& visit);

    std::unique_ptr<mnl_socket, CloseSocket> socket_;
    std::optional<std::uint16_t> family_;
    std::uint32_t sequence_ = 0;
};

}  // namespace tidewatch::platform
