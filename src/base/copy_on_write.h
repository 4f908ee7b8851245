#pragma once

#include <atomic>
#include <cstdint>
#include <utility>

namespace tidewatch {

/// A value shared by its copies until one of them is edited. Copying takes constant time.
///
/// One object is not thread-safe; copies are independent and may be used and destroyed on other threads. A
/// moved-from object may only be assigned to or destroyed.
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

    /// Mutable access; copies the value first if it is shared. The reference is valid until this object is
    /// copied.
    [[nodiscard]] T& edit() {
        // Synchronises with the release by the last other owner, on whichever thread.
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
