#pragma once

#include <poll.h>

#include <array>
#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "platform/freedesktop/bus_message.h"
#include "platform/posix/file_descriptor.h"

namespace tidewatch::platform {

/// Whether a bus is known to be unresponsive; shared by all connections to it.
class BusHealth final {
public:
    [[nodiscard]] bool isUnresponsive() const { return unresponsive_; }
    void markUnresponsive() { unresponsive_ = true; }
    void markResponsive() { unresponsive_ = false; }

private:
    bool unresponsive_ = false;
};

/// One proxied connection of this process to a bus. Never blocks.
class BusProxyConnection final {
public:
    using Clock = std::chrono::steady_clock;
    using Moment = Clock::time_point;

    /// Owns both sockets. `health` must outlive this object; `proxiedAddress` maps the address of another bus
    /// in a reply to its proxy's.
    BusProxyConnection(int client, int bus, std::chrono::milliseconds timeout, BusHealth& health,
                       std::function<std::string(const std::string&)> proxiedAddress);

    /// The events to poll for: first the client's side, then the bus's.
    [[nodiscard]] std::array<pollfd, 2> wanted() const;

    /// When expireOverdueCalls() must be called at the latest.
    [[nodiscard]] std::optional<Moment> deadline() const;

    /// Handles the events reported by poll().
    void serve(short clientEvents, short busEvents);
    void expireOverdueCalls();

    /// Replies to all pending calls with an error.
    void expireAllCalls();

    /// Whether it can be destroyed.
    [[nodiscard]] bool isOver() const;

private:
    struct Call {
        std::string destination;
        std::optional<Moment> deadline;  ///< none for services only called asynchronously
        bool expired = false;
        bool asksForAddress = false;
    };

    void readClient();
    void readBus();
    void write();
    void forwardHandshake();
    void forwardToBus(std::string_view bytes);
    void forwardToClient(std::string_view bytes);
    void expire(std::uint32_t serial, Call& call);
    void endClient();

    FileDescriptor client_;
    FileDescriptor bus_;
    const std::chrono::milliseconds timeout_;
    BusHealth& health_;
    const std::function<std::string(const std::string&)> proxiedAddress_;
    bool clientGone_ = false;
    bool busGone_ = false;
    bool handshakeDone_ = false;  ///< only messages follow
    std::optional<Moment> handshakeDeadline_;
    std::string fromClient_, fromBus_, toClient_, toBus_;
    std::map<std::uint32_t, Call> calls_;
    std::set<std::string> unresponsive_;  ///< services with an expired call
};

}  // namespace tidewatch::platform
