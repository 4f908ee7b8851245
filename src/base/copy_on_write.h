#pragma once

#include <atomic>
#include <cstdint>
#include <utility>

namespace tidewatch {

/// A value that its copies share until one of them is edited. A copy costs next to nothing, whatever the size
/// of the value.
///
/// Like any value, one object is not safe from several threads; its copies are independent of it and may be
/// used and destroyed on others. An object that was moved from may only be assigned to or destroyed.
template <class T>
class CopyOnWrite final {
public:
    /// The value is default-initialised.
    CopyOnWrite() : shared_(new Shared) {}
    CopyOnWrite(const CopyOnWrite& other) noexcept : shared_(other.shared_) {
        shared_->owners.fetch_add(1, std::memory_order_relaxed);
    }
    CopyOnWrite(CopyOnWrite&& other) noexcept : shared_(std::exchange(other.shared_, nullptr)) {}
    CopyOnWrite& operator=(CopyOnWrite other) noexcept {
        std::swap(shared_, other.shared_);
        return *this;
    }
    ~CopyOnWrite() {
        if (shared_ && shared_->owners.fetch_sub(1, std::memory_order_acq_rel) == 1) delete shared_;
    }

    [[nodiscard]] const T& operator*() const noexcept { return shared_->value; }
    [[nodiscard]] const T* operator->() const noexcept { return &shared_->value; }

    /// The value for changing it. Copies it first if it is shared. Valid until this object is copied.
    [[nodiscard]] T& edit() {
        // Acquires what a last other owner on another thread did before it let go.
        if (shared_->owners.load(std::memory_order_acquire) != 1) *this = CopyOnWrite(new Shared(**this));
        return shared_->value;
    }

private:
    struct Shared {
        Shared() = default;
        explicit Shared(const T& other) : value(other) {}

        std::atomic<std::uint32_t> owners{1};
        T value;
    };

    explicit CopyOnWrite(Shared* shared) : shared_(shared) {}

    Shared* shared_;
};

}  // namespace tidewatch
