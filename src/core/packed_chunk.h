#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <span>
#include <type_traits>
#include <vector>

namespace tidewatch {

/// Up to `capacity` integers, each stored in the one, two, four or eight bytes that the widest of them needs.
///
/// What is stored is the difference to a base, so that ascending indices are as narrow as small counters. The
/// base is the first value, or 0 once a smaller one came. Not thread-safe.
template <class T>
class PackedChunk final {
    using Unsigned = std::make_unsigned_t<T>;

public:
    using Value = T;

    static constexpr std::size_t capacity = 2048;

    [[nodiscard]] bool isFull() const { return size_ == capacity; }

    [[nodiscard]] T operator[](std::size_t index) const {
        Unsigned word;
        std::memcpy(&word, cells_.data() + (index << shift_), sizeof word);
        return static_cast<T>(static_cast<Unsigned>(base_) + (word & mask_));
    }

    /// Copies all values to the beginning of `target`.
    void read(std::span<T, capacity> target) const {
        switch (shift_) {
            case 0:
                return copyTo<std::uint8_t>(target);
            case 1:
                return copyTo<std::uint16_t>(target);
            case 2:
                return copyTo<std::uint32_t>(target);
            default:
                return copyTo<std::uint64_t>(target);
        }
    }

    void set(std::size_t index, T value) {
        makeRoomFor(value);
        store(index, value);
    }

    /// Only while not full.
    void append(T value) {
        if (size_ == 0) base_ = value;
        makeRoomFor(value);
        store(size_++, value);
    }

    /// Only while not full.
    void insert(std::size_t index, T value) {
        makeRoomFor(value);
        auto* const cell = cells_.data() + (index << shift_);
        std::memmove(cell + (std::size_t{1} << shift_), cell, (size_++ - index) << shift_);
        store(index, value);
    }

    void removeLast() { --size_; }

    /// Adds to each value; none may overflow.
    void addToAll(T amount) { base_ += amount; }

private:
    // A cell is read and written as part of the word that it is the beginning of.
    static_assert(std::endian::native == std::endian::little);

    static std::vector<std::byte> cellsOf(unsigned shift) {
        return std::vector<std::byte>((capacity << shift) + sizeof(Unsigned));
    }

    [[nodiscard]] Unsigned difference(T value) const {
        return static_cast<Unsigned>(value) - static_cast<Unsigned>(base_);
    }

    template <class Cell>
    void copyTo(std::span<T, capacity> target) const {
        for (std::size_t index = 0; index < size_; ++index) {
            Cell cell;
            std::memcpy(&cell, cells_.data() + index * sizeof cell, sizeof cell);
            target[index] = static_cast<T>(static_cast<Unsigned>(base_) + static_cast<Unsigned>(cell));
        }
    }

    void store(std::size_t index, T value) {
        auto* const cell = cells_.data() + (index << shift_);
        Unsigned word;
        std::memcpy(&word, cell, sizeof word);
        word = (word & ~mask_) | difference(value);
        std::memcpy(cell, &word, sizeof word);
    }

    void makeRoomFor(T value) {
        if (difference(value) > mask_) [[unlikely]]
            rebuildFor(value);
    }

    void rebuildFor(T value) {
        const PackedChunk old = *this;
        if (value < base_) base_ = 0;
        for (std::size_t index = 0; index <= size_; ++index) {
            const T stored = index < size_ ? old[index] : value;
            while (difference(stored) > mask_) {
                ++shift_;
                mask_ = std::numeric_limits<Unsigned>::max() >>
                        (8 * (sizeof(Unsigned) - (std::size_t{1} << shift_)));
            }
        }
        cells_ = cellsOf(shift_);
        for (std::size_t index = 0; index < size_; ++index) store(index, old[index]);
    }

    T base_ = 0;
    Unsigned mask_ = std::numeric_limits<std::uint8_t>::max();  // the greatest difference that fits
    std::uint32_t size_ = 0;
    unsigned shift_ = 0;  // a cell has 2^shift_ bytes
    std::vector<std::byte> cells_ = cellsOf(0);
};

}  // namespace tidewatch
