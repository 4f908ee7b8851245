#include "platform/freedesktop/bus_proxy_connection.h"

#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace tidewatch::platform {

namespace {

constexpr std::size_t pieceSize = 16 * 1024;
constexpr std::size_t maxUnsent = 4 * 1024 * 1024;  // bytes

constexpr std::string_view lineEnd = "\r\n";
constexpr std::string_view handshakeEnd = "BEGIN";
constexpr std::string_view descriptorRequest = "NEGOTIATE_UNIX_FD";
constexpr std::string_view descriptorRefusal = "ERROR\r\n";

constexpr std::string_view busName = "org.freedesktop.DBus";
constexpr std::string_view noReply = "org.freedesktop.DBus.Error.NoReply";

/// Only called asynchronously, and legitimately slow: they may have to be started first.
constexpr std::array<std::string_view, 3> slowServices = {"org.a11y.Bus", "org.freedesktop.FileManager1",
                                                          "org.freedesktop.Notifications"};

/// Reads what is available; false once the peer has closed.
bool readAll(int descriptor, std::string& into) {
    std::array<char, pieceSize> piece;
    for (;;) {
        const auto count = ::recv(descriptor, piece.data(), piece.size(), 0);
        if (count > 0) {
            into.append(piece.data(), static_cast<std::size_t>(count));
        } else if (count == 0 || (errno != EINTR && errno != EAGAIN)) {
            return false;
        } else if (errno == EAGAIN) {
            return true;
        }
    }
}

bool writeAll(int descriptor, std::string& from) {
    while (!from.empty()) {
        const auto count = ::send(descriptor, from.data(), from.size(), MSG_NOSIGNAL);
        if (count > 0) {
            from.erase(0, static_cast<std::size_t>(count));
        } else if (errno == EAGAIN) {
            return from.size() <= maxUnsent;
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

/// Calls `pass` with each complete message at the front of `bytes` and removes it; false if malformed.
template <class Pass>
bool forEachMessage(std::string& bytes, Pass pass) {
    std::size_t done = 0;
    for (;;) {
        const auto rest = std::string_view(bytes).substr(done);
        const auto size = BusMessage::sizeAtFront(rest);
        if (!size) return false;
        if (*size == 0 || *size > rest.size()) break;
        pass(rest.substr(0, *size));
        done += *size;
    }
    bytes.erase(0, done);
    return true;
}

}  // namespace

BusProxyConnection::BusProxyConnection(int client, int bus, std::chrono::milliseconds timeout,
                                       BusHealth& health,
                                       std::function<std::string(const std::string&)> proxiedAddress)
    : client_(client),
      bus_(bus),
      timeout_(timeout),
      health_(health),
      proxiedAddress_(std::move(proxiedAddress)) {}

std::array<pollfd, 2> BusProxyConnection::wanted() const {
    const auto side = [](const FileDescriptor& socket, bool gone, const std::string& unsent) {
        const auto events = static_cast<short>(POLLIN | (unsent.empty() ? 0 : POLLOUT));
        return pollfd{gone ? -1 : socket.get(), events, 0};
    };
    return {side(client_, clientGone_, toClient_), side(bus_, busGone_, toBus_)};
}

std::optional<BusProxyConnection::Moment> BusProxyConnection::deadline() const {
    auto earliest = handshakeDeadline_;
    for (const auto& [serial, call] : calls_) {
        if (!call.expired && call.deadline && (!earliest || *call.deadline < *earliest))
            earliest = call.deadline;
    }
    return earliest;
}

void BusProxyConnection::serve(short clientEvents, short busEvents) {
    // Forward what the bus sent before it closed first.
    if (busEvents != 0 && !busGone_) readBus();
    if (clientEvents != 0 && !clientGone_) readClient();
    write();
}

void BusProxyConnection::expireOverdueCalls() {
    const auto now = Clock::now();
    if (handshakeDeadline_ && *handshakeDeadline_ <= now) {
        health_.markUnresponsive();
        endClient();
    }
    for (auto& [serial, call] : calls_) {
        if (call.expired || !call.deadline || *call.deadline > now) continue;
        if (call.destination == busName) health_.markUnresponsive();
        unresponsive_.insert(call.destination);
        expire(serial, call);
    }
    write();
}

void BusProxyConnection::expireAllCalls() {
    if (!handshakeDone_) endClient();
    for (auto& [serial, call] : calls_) expire(serial, call);
    write();
}

bool BusProxyConnection::isOver() const {
    // A connection to an unresponsive bus is kept: it detects when the bus responds again.
    return busGone_ || (clientGone_ && !health_.isUnresponsive());
}

void BusProxyConnection::readClient() {
    if (!readAll(client_.get(), fromClient_)) endClient();
    if (!handshakeDone_) forwardHandshake();
    if (handshakeDone_ &&
        !forEachMessage(fromClient_, [this](std::string_view bytes) { forwardToBus(bytes); }))
        endClient();
}

void BusProxyConnection::readBus() {
    const auto before = fromBus_.size();
    const bool open = readAll(bus_.get(), fromBus_);
    if (fromBus_.size() > before) {
        health_.markResponsive();
        handshakeDeadline_.reset();
    }
    bool sound = true;
    if (handshakeDone_) {
        sound = forEachMessage(fromBus_, [this](std::string_view bytes) { forwardToClient(bytes); });
    } else {
        toClient_ += std::exchange(fromBus_, {});
    }
    if (open && sound) return;
    busGone_ = true;
    health_.markResponsive();  // a closed bus blocks nobody
}

void BusProxyConnection::write() {
    if (!clientGone_ && !writeAll(client_.get(), toClient_)) endClient();
    if (!busGone_ && !writeAll(bus_.get(), toBus_)) busGone_ = true;
}

void BusProxyConnection::forwardHandshake() {
    while (!handshakeDone_ && !fromClient_.empty()) {
        if (fromClient_.front() == '\0') {  // the credentials byte
            toBus_ += '\0';
            fromClient_.erase(0, 1);
            continue;
        }
        const auto end = fromClient_.find(lineEnd);
        if (end == std::string::npos) break;
        const std::string line = fromClient_.substr(0, end);
        fromClient_.erase(0, end + lineEnd.size());
        if (line == descriptorRequest) {
            toClient_ += descriptorRefusal;
            continue;
        }
        toBus_.append(line).append(lineEnd);
        handshakeDone_ = line == handshakeEnd;
        if (!handshakeDone_) handshakeDeadline_ = Clock::now() + timeout_;
    }
}

void BusProxyConnection::forwardToBus(std::string_view bytes) {
    const auto message = BusMessage::parse(bytes);
    if (!message || !message->wantsReply) {
        // Signals for a bus that does not read would accumulate.
        if (!message || message->type != BusMessage::Type::signal || !health_.isUnresponsive())
            toBus_ += bytes;
        return;
    }
    Call call{.destination = message->destination,
              .deadline = Clock::now() + timeout_,
              .asksForAddress = message->destination == "org.a11y.Bus" && message->member == "GetAddress"};
    if (health_.isUnresponsive() || unresponsive_.contains(call.destination)) {
        expire(message->serial, call);
        return;
    }
    if (std::ranges::find(slowServices, call.destination) != slowServices.end()) call.deadline.reset();
    calls_.insert_or_assign(message->serial, std::move(call));
    toBus_ += bytes;
}

void BusProxyConnection::forwardToClient(std::string_view bytes) {
    const auto message = BusMessage::parse(bytes);
    const auto found = message && message->answers != 0 ? calls_.find(message->answers) : calls_.end();
    if (found == calls_.end()) {
        toClient_ += bytes;
        return;
    }
    const auto call = std::move(found->second);
    calls_.erase(found);
    unresponsive_.erase(call.destination);
    if (call.expired) return;
    const auto address = call.asksForAddress ? BusMessage::text(bytes) : std::string_view();
    if (address.empty()) {
        toClient_ += bytes;
    } else {
        toClient_ += busReply(message->answers, message->sender, proxiedAddress_(std::string(address)));
    }
}

void BusProxyConnection::expire(std::uint32_t serial, Call& call) {
    if (std::exchange(call.expired, true)) return;
    toClient_ += busError(serial, noReply, "no answer in time");
}

void BusProxyConnection::endClient() {
    // Also if the client was gone already: its last data may have started a handshake.
    handshakeDeadline_.reset();
    if (std::exchange(clientGone_, true)) return;
    ::shutdown(client_.get(), SHUT_RDWR);
}

}  // namespace tidewatch::platform
