#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace tidewatch {

/// Up to `capacity` integers as they are. The counterpart of PackedChunk for what is looked up one by one.
/// Not thread-safe.
template <class T>
class PlainChunk final {
public:
    using Value = T;

    static constexpr std::size_t capacity = 2048;

    [[nodiscard]] bool isFull() const { return size_ == capacity; }

    [[nodiscard]] T operator[](std::size_t index) const { return values_[index]; }

    void set(std::size_t index, T value) { values_[index] = value; }

    /// Only while not full.
    void append(T value) { values_[size_++] = value; }

    /// Only while not full.
    void insert(std::size_t index, T value) {
        const auto at = [this](std::size_t place) {
            return values_.begin() + static_cast<std::ptrdiff_t>(place);
        };
        std::copy_backward(at(index), at(size_), at(size_ + 1));
        values_[index] = value;
        ++size_;
    }

    void removeLast() { --size_; }

    /// Adds to each value; none may overflow.
    void addToAll(T amount) {
        for (std::size_t index = 0; index < size_; ++index) values_[index] += amount;
    }

private:
    std::array<T, capacity> values_;  // uninitialised from size_ on
    std::uint32_t size_ = 0;
};

}  // namespace tidewatch
