#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "core/column.h"

namespace tidewatch {

/// A sequence of 64-bit integers that take four bytes each while between 0 and 2^31 - 1, as booked seconds
/// are; others take twelve. Copy-on-write like Column.
class CounterColumn final {
public:
    [[nodiscard]] std::size_t size() const { return narrow_.size(); }

    /// How an integer lies in the column.
    using Cell = std::uint32_t;

    [[nodiscard]] std::int64_t operator[](std::size_t index) const { return valueOf(narrow_[index]); }

    /// See Column::run().
    [[nodiscard]] std::span<const Cell> run(std::size_t begin, std::size_t end) const {
        return narrow_.run(begin, end);
    }

    [[nodiscard]] std::int64_t valueOf(Cell cell) const {
        return (cell & wideMark) != 0 ? wide_[cell & ~wideMark] : cell;
    }

    void set(std::size_t index, std::int64_t value) {
        const auto cell = narrow_[index];
        if ((cell & wideMark) != 0) {
            wide_.set(cell & ~wideMark, value);
        } else {
            narrow_.set(index, cellFor(value));
        }
    }

    void insert(std::size_t index, std::int64_t value) { narrow_.insert(index, cellFor(value)); }

    void append(std::int64_t value) { narrow_.append(cellFor(value)); }

private:
    static constexpr Cell wideMark = 0x8000'0000;

    Cell cellFor(std::int64_t value) {
        if (value >= 0 && value < wideMark) return static_cast<Cell>(value);
        wide_.append(value);
        return static_cast<Cell>(wide_.size() - 1) | wideMark;
    }

    Column<Cell> narrow_;
    Column<std::int64_t> wide_;
};

}  // namespace tidewatch
