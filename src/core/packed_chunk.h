#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace tidewatch {

/// Up to `capacity` integers, each stored in the one, two, four or eight bytes that the widest of them needs.
///
/// What is stored is the difference to a base, so that indices that ascend are as narrow as small counters.
/// The base is the first value, or 0 once a smaller one came. Not thread-safe.
template <class T>
class PackedChunk final {
public:
    static constexpr std::size_t capacity = 2048;

    [[nodiscard]] std::size_t size() const {
        return std::visit([](const auto& cells) { return cells.size(); }, cells_);
    }
    [[nodiscard]] bool isFull() const { return size() == capacity; }

    [[nodiscard]] T operator[](std::size_t index) const {
        return std::visit([&](const auto& cells) { return valueOf(cells[index]); }, cells_);
    }

    /// Copies the values from `begin` on into `target`, as many as fit.
    void read(std::size_t begin, std::span<T> target) const {
        std::visit(
            [&](const auto& cells) {
                const auto* const first = cells.data() + begin;
                for (std::size_t i = 0; i < target.size(); ++i) target[i] = valueOf(first[i]);
            },
            cells_);
    }

    void set(std::size_t index, T value) {
        makeRoomFor(value);
        std::visit([&](auto& cells) { store(cells[index], value); }, cells_);
    }

    /// Only while not full.
    void insert(std::size_t index, T value) {
        if (size() == 0) base_ = value;
        makeRoomFor(value);
        std::visit(
            [&](auto& cells) {
                // A chunk fills up: growing by doubling would end above its capacity.
                if (cells.size() == cells.capacity()) cells.reserve(capacity);
                store(*cells.insert(cells.begin() + static_cast<std::ptrdiff_t>(index), 0), value);
            },
            cells_);
    }

    void removeLast() {
        std::visit([](auto& cells) { cells.pop_back(); }, cells_);
    }

    /// Adds to each value; none may overflow.
    void addToAll(T amount) { base_ += amount; }

private:
    using Unsigned = std::make_unsigned_t<T>;
    template <class Cell>
    using Cells = std::vector<Cell>;

    template <class Cell>
    [[nodiscard]] T valueOf(Cell cell) const {
        return static_cast<T>(
            static_cast<Unsigned>(static_cast<Unsigned>(base_) + static_cast<Unsigned>(cell)));
    }

    [[nodiscard]] Unsigned difference(T value) const {
        return static_cast<Unsigned>(static_cast<Unsigned>(value) - static_cast<Unsigned>(base_));
    }

    template <class Cell>
    void store(Cell& cell, T value) const {
        cell = static_cast<Cell>(difference(value));
    }

    void makeRoomFor(T value) {
        if (value < base_ && base_ != 0) rebuild();
        while (!fits(difference(value))) widen();
    }

    [[nodiscard]] bool fits(Unsigned difference) const {
        return std::visit(
            [&]<class Cell>(const Cells<Cell>&) { return difference == static_cast<Cell>(difference); },
            cells_);
    }

    void widen() {
        if (cells_.index() == 0) {
            copyTo<std::uint16_t>();
        } else if (cells_.index() == 1) {
            copyTo<std::uint32_t>();
        } else {
            copyTo<std::uint64_t>();
        }
    }

    template <class Cell>
    void copyTo() {
        Cells<Cell> wider;
        wider.reserve(capacity);
        std::visit([&](const auto& cells) { wider.assign(cells.begin(), cells.end()); }, cells_);
        cells_ = std::move(wider);
    }

    // Stores all values anew, as they are instead of counted from the first.
    void rebuild() {
        std::vector<T> values(size());
        read(0, values);
        cells_ = Cells<std::uint8_t>();
        base_ = 0;
        for (const T value : values) {
            makeRoomFor(value);
            std::visit([&](auto& cells) { store(cells.emplace_back(), value); }, cells_);
        }
    }

    T base_ = 0;
    std::variant<Cells<std::uint8_t>, Cells<std::uint16_t>, Cells<std::uint32_t>, Cells<std::uint64_t>>
        cells_;
};

}  // namespace tidewatch
