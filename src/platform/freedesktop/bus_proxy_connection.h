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

/// Whether a bus is known to have stopped answering; shared by all connections to it.
class BusHealth final {
public:
    [[nodiscard]] bool isUnresponsive() const { return unresponsive_; }
    void markUnresponsive() { unresponsive_ = true; }
    void markResponsive() { unresponsive_ = false; }

private:
    bool unresponsive_ = false;
};

/// One connection of this process to a bus, passed on in both directions. Nothing in here waits.
class BusProxyConnection final {
public:
    using Clock = std::chrono::steady_clock;
    using Moment = Clock::time_point;

    /// Owns the two sockets. `health` must outlive this object; `proxiedAddress` gives the address to be used
    /// for another bus that an answer names.
    BusProxyConnection(int client, int bus, std::chrono::milliseconds timeout, BusHealth& health,
                       std::function<std::string(const std::string&)> proxiedAddress);

    /// What is to be polled for, first the side of this process, then that of the bus.
    [[nodiscard]] std::array<pollfd, 2> wanted() const;

    /// When expireOverdueCalls is to be called at the latest.
    [[nodiscard]] std::optional<Moment> deadline() const;

    /// Reads and writes what poll() found possible.
    void serve(short clientEvents, short busEvents);
    void expireOverdueCalls();

    /// Answers all that is still open with an error.
    void expireAllCalls();

    /// Whether it can be destroyed.
    [[nodiscard]] bool isOver() const;

private:
    struct Call {
        std::string destination;
        std::optional<Moment> deadline;  ///< none for who is only asked without waiting
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
    bool handshakeDone_ = false;  ///< from here on there are messages only
    std::optional<Moment> handshakeDeadline_;
    std::string fromClient_, fromBus_, toClient_, toBus_;
    std::map<std::uint32_t, Call> calls_;
    std::set<std::string> unresponsive_;  ///< who owes an answer that was given up
};

}  // namespace tidewatch::platform
