#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>

namespace tidewatch {

/// A listener's connection to a Signal; disconnects on destruction. May outlive the signal.
class [[nodiscard]] Connection final {
public:
    Connection() = default;
    explicit Connection(std::function<void()> detach) : detach_(std::move(detach)) {}
    Connection(Connection&& other) noexcept : detach_(std::exchange(other.detach_, nullptr)) {}
    Connection& operator=(Connection&& other) noexcept {
        if (this != &other) {
            disconnect();
            detach_ = std::exchange(other.detach_, nullptr);
        }
        return *this;
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { disconnect(); }

    void disconnect() {
        if (auto detach = std::exchange(detach_, nullptr)) detach();
    }

private:
    std::function<void()> detach_;
};

/// Calls its listeners in the order of connection. Not thread-safe. A listener may connect and disconnect
/// others, and itself, while it is being called.
template <class... Args>
class Signal final {
public:
    using Listener = std::function<void(Args...)>;

    Signal() = default;
    Signal(const Signal&) = delete;
    Signal& operator=(const Signal&) = delete;

    Connection connect(Listener listener) {
        const auto id = slots_->next++;
        slots_->listeners.emplace(id, std::make_shared<Listener>(std::move(listener)));
        return Connection([slots = std::weak_ptr(slots_), id] {
            if (const auto alive = slots.lock()) alive->listeners.erase(id);
        });
    }

    void emit(Args... args) const {
        const auto slots = slots_;
        const auto end = slots->next;
        for (auto it = slots->listeners.begin(); it != slots->listeners.end() && it->first < end;) {
            const auto id = it->first;
            const auto listener = it->second;
            (*listener)(args...);
            it = slots->listeners.upper_bound(id);
        }
    }

private:
    struct Slots {
        std::map<std::uint64_t, std::shared_ptr<Listener>> listeners;
        std::uint64_t next = 0;
    };
    std::shared_ptr<Slots> slots_ = std::make_shared<Slots>();
};

}  // namespace tidewatch
