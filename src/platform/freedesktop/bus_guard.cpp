#include "platform/freedesktop/bus_guard.h"

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
#include "platform/freedesktop/bus_relay.h"
#include "platform/posix/file_descriptor.h"
#include "platform/posix/shortage.h"

namespace tidewatch::platform {

namespace {

constexpr char nowhere[] = "disabled:";
constexpr std::chrono::milliseconds restAfterShortage(100);

/// A socket that no file stands for, with a name that the kernel chooses.
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

/// A connection that waits for nothing; -1 if nobody takes it at once.
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

class BusGuard::Watch final {
public:
    explicit Watch(std::chrono::milliseconds patience) : patience_(patience), thread_([this] { run(); }) {}

    ~Watch() {
        ending_ = true;
        wake();
        thread_.join();
    }

    std::string guarded(const std::string& address) {
        const auto socket = socketOfBus(address);
        if (!socket) return nowhere;
        const std::scoped_lock lock(doorsMutex_);
        const auto known = std::ranges::find(doors_, *socket, &Door::bus);
        if (known != doors_.end()) return known->address;
        const int listener = listenAnywhere();
        if (listener < 0) return nowhere;
        doors_.emplace_back(*socket, listener);
        wake();
        return doors_.back().address;
    }

private:
    /// Where this process asks for one bus.
    struct Door {
        Door(const LocalSocket& theBus, int listening)
            : bus(theBus), listener(listening), address(addressOf(listening)) {}

        const LocalSocket bus;
        const FileDescriptor listener;
        const std::string address;
        BusHealth health;
        std::list<BusRelay> relays;
        std::optional<BusRelay::Moment> restsUntil;  ///< set when no descriptor was left for who asks
    };

    void wake() {
        const std::uint64_t one = 1;
        [[maybe_unused]] const auto written = ::write(wake_.get(), &one, sizeof one);
    }

    void run() {
        while (!ending_) {
            std::vector<pollfd> asked{{wake_.get(), POLLIN, 0}};
            std::optional<BusRelay::Moment> deadline;
            const auto doors = currentDoors();
            for (auto* door : doors) {
                if (door->restsUntil && *door->restsUntil <= BusRelay::Clock::now()) door->restsUntil.reset();
                // Whoever cannot be let in would be announced again at once, and without an end.
                asked.push_back({door->restsUntil ? -1 : door->listener.get(), POLLIN, 0});
                if (door->restsUntil && (!deadline || *door->restsUntil < *deadline))
                    deadline = door->restsUntil;
                for (const auto& relay : door->relays) {
                    const auto sides = relay.wanted();
                    asked.insert(asked.end(), sides.begin(), sides.end());
                    if (const auto its = relay.deadline(); its && (!deadline || *its < *deadline))
                        deadline = its;
                }
            }
            ::poll(asked.data(), asked.size(), timeOut(deadline));
            std::uint64_t count = 0;
            [[maybe_unused]] const auto taken = ::read(wake_.get(), &count, sizeof count);
            auto answer = asked.cbegin() + 1;
            for (auto* door : doors) serve(*door, answer);
        }
    }

    std::vector<Door*> currentDoors() {
        const std::scoped_lock lock(doorsMutex_);
        std::vector<Door*> doors;
        for (auto& door : doors_) doors.push_back(&door);
        return doors;
    }

    static int timeOut(std::optional<BusRelay::Moment> deadline) {
        if (!deadline) return -1;
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(*deadline - BusRelay::Clock::now());
        return static_cast<int>(std::max<std::int64_t>(left.count(), 0));
    }

    void serve(Door& door, std::vector<pollfd>::const_iterator& answer) {
        const bool asked = (answer++)->revents != 0;
        for (auto& relay : door.relays) {
            relay.serve(answer[0].revents, answer[1].revents);
            answer += 2;
        }
        for (auto& relay : door.relays) relay.giveUpWhatIsLate();
        // All of them fall silent with their bus.
        if (door.health.isSilent()) {
            for (auto& relay : door.relays) relay.giveUpEverything();
        }
        std::erase_if(door.relays, [](const BusRelay& relay) { return relay.isOver(); });
        if (asked) open(door);
    }

    void open(Door& door) {
        const int client = ::accept4(door.listener.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        if (client < 0) {
            if (isShortage(errno)) door.restsUntil = BusRelay::Clock::now() + restAfterShortage;
            return;
        }
        const int bus = isThisProcess(client) && !door.health.isSilent() ? connectAtOnce(door.bus) : -1;
        if (bus < 0) {
            ::close(client);
            return;
        }
        door.relays.emplace_back(client, bus, patience_, door.health,
                                 [this](const std::string& address) { return guarded(address); });
    }

    const std::chrono::milliseconds patience_;
    const FileDescriptor wake_{::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)};
    std::atomic<bool> ending_ = false;
    std::mutex doorsMutex_;
    std::list<Door> doors_;  ///< only ever grows, so that what it holds stays where it is
    std::thread thread_;
};

BusGuard::BusGuard(std::chrono::milliseconds patience) : watch_(std::make_unique<Watch>(patience)) {}
BusGuard::~BusGuard() = default;

std::string BusGuard::guarded(const std::string& address) {
    return watch_->guarded(address);
}

}  // namespace tidewatch::platform
