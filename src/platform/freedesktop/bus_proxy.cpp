#include "platform/freedesktop/bus_proxy.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <list>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

#include "platform/freedesktop/bus_address.h"
#include "platform/freedesktop/bus_proxy_connection.h"
#include "platform/posix/file_descriptor.h"
#include "platform/posix/resource_shortage.h"

namespace tidewatch::platform {

namespace {

constexpr char nowhere[] = "disabled:";
constexpr std::chrono::milliseconds retryDelay(100);

/// Listens on an abstract socket with a name chosen by the kernel.
int listenAnywhere() {
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const sockaddr_un anyName{.sun_family = AF_UNIX, .sun_path = {}};
    if (::bind(descriptor, reinterpret_cast<const sockaddr*>(&anyName), sizeof anyName.sun_family) == 0 &&
        ::listen(descriptor, SOMAXCONN) == 0) {
        return descriptor;
    }
    ::close(descriptor);
    return -1;
}

std::string addressOf(int listener) {
    sockaddr_un name{};
    socklen_t size = sizeof name;
    if (::getsockname(listener, reinterpret_cast<sockaddr*>(&name), &size) != 0) return nowhere;
    const auto length = size - offsetof(sockaddr_un, sun_path);
    return "unix:abstract=" + std::string(name.sun_path + 1, length - 1);
}

/// A non-blocking connection; -1 if it is not accepted immediately.
int connectAtOnce(const LocalSocket& socket) {
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (::connect(descriptor, reinterpret_cast<const sockaddr*>(&socket.name), socket.size) == 0) {
        return descriptor;
    }
    ::close(descriptor);
    return -1;
}

bool isThisProcess(int descriptor) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return ::getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.pid == ::getpid();
}

}  // namespace

class BusProxy::Worker final {
public:
    explicit Worker(std::chrono::milliseconds timeout) : timeout_(timeout), thread_([this] { run(); }) {}

    ~Worker() {
        ending_ = true;
        wake();
        thread_.join();
    }

    std::string proxiedAddress(const std::string& address) {
        const auto socket = socketOfBus(address);
        if (!socket) return nowhere;
        const std::scoped_lock lock(endpointsMutex_);
        const auto known = std::ranges::find(endpoints_, *socket, &Endpoint::bus);
        if (known != endpoints_.end()) return known->address;
        const int listener = listenAnywhere();
        if (listener < 0) return nowhere;
        endpoints_.emplace_back(*socket, listener);
        wake();
        return endpoints_.back().address;
    }

private:
    /// Where this process connects to reach one bus.
    struct Endpoint {
        Endpoint(const LocalSocket& theBus, int listening)
            : bus(theBus), listener(listening), address(addressOf(listening)) {}

        const LocalSocket bus;
        const FileDescriptor listener;
        const std::string address;
        BusHealth health;
        std::list<BusProxyConnection> connections;
        std::optional<BusProxyConnection::Moment> pausedUntil;  ///< set while out of file descriptors
    };

    void wake() {
        const std::uint64_t one = 1;
        [[maybe_unused]] const auto written = ::write(wake_.get(), &one, sizeof one);
    }

    void run() {
        while (!ending_) {
            std::vector<pollfd> asked{{wake_.get(), POLLIN, 0}};
            std::optional<BusProxyConnection::Moment> deadline;
            const auto endpoints = currentEndpoints();
            for (auto* endpoint : endpoints) {
                if (endpoint->pausedUntil && *endpoint->pausedUntil <= BusProxyConnection::Clock::now())
                    endpoint->pausedUntil.reset();
                // A pending connection that cannot be accepted would wake poll() again immediately.
                asked.push_back({endpoint->pausedUntil ? -1 : endpoint->listener.get(), POLLIN, 0});
                if (endpoint->pausedUntil && (!deadline || *endpoint->pausedUntil < *deadline))
                    deadline = endpoint->pausedUntil;
                for (const auto& connection : endpoint->connections) {
                    const auto sides = connection.wanted();
                    asked.insert(asked.end(), sides.begin(), sides.end());
                    if (const auto its = connection.deadline(); its && (!deadline || *its < *deadline))
                        deadline = its;
                }
            }
            ::poll(asked.data(), asked.size(), pollTimeout(deadline));
            std::uint64_t count = 0;
            [[maybe_unused]] const auto taken = ::read(wake_.get(), &count, sizeof count);
            auto answer = asked.cbegin() + 1;
            for (auto* endpoint : endpoints) serve(*endpoint, answer);
        }
    }

    std::vector<Endpoint*> currentEndpoints() {
        const std::scoped_lock lock(endpointsMutex_);
        std::vector<Endpoint*> endpoints;
        for (auto& endpoint : endpoints_) endpoints.push_back(&endpoint);
        return endpoints;
    }

    static int pollTimeout(std::optional<BusProxyConnection::Moment> deadline) {
        if (!deadline) return -1;
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(*deadline - BusProxyConnection::Clock::now());
        return static_cast<int>(std::max<std::int64_t>(left.count(), 0));
    }

    void serve(Endpoint& endpoint, std::vector<pollfd>::const_iterator& answer) {
        const bool asked = (answer++)->revents != 0;
        for (auto& connection : endpoint.connections) {
            connection.serve(answer[0].revents, answer[1].revents);
            answer += 2;
        }
        for (auto& connection : endpoint.connections) connection.expireOverdueCalls();
        // All connections share the state of their bus.
        if (endpoint.health.isUnresponsive()) {
            for (auto& connection : endpoint.connections) connection.expireAllCalls();
        }
        std::erase_if(endpoint.connections,
                      [](const BusProxyConnection& connection) { return connection.isOver(); });
        if (asked) open(endpoint);
    }

    void open(Endpoint& endpoint) {
        const int client = ::accept4(endpoint.listener.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        if (client < 0) {
            if (isResourceShortage(errno))
                endpoint.pausedUntil = BusProxyConnection::Clock::now() + retryDelay;
            return;
        }
        const int bus =
            isThisProcess(client) && !endpoint.health.isUnresponsive() ? connectAtOnce(endpoint.bus) : -1;
        if (bus < 0) {
            ::close(client);
            return;
        }
        endpoint.connections.emplace_back(
            client, bus, timeout_, endpoint.health,
            [this](const std::string& address) { return proxiedAddress(address); });
    }

    const std::chrono::milliseconds timeout_;
    const FileDescriptor wake_{::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)};
    std::atomic<bool> ending_ = false;
    std::mutex endpointsMutex_;
    std::list<Endpoint> endpoints_;  ///< never shrinks, so that elements keep their addresses
    std::thread thread_;
};

BusProxy::BusProxy(std::chrono::milliseconds timeout) : worker_(std::make_unique<Worker>(timeout)) {}
BusProxy::~BusProxy() = default;

std::string BusProxy::proxiedAddress(const std::string& address) {
    return worker_->proxiedAddress(address);
}

}  // namespace tidewatch::platform
