#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "base/copy_on_write.h"

namespace tidewatch {

/// A long sequence of numbers that rarely change, stored in copy-on-write chunks: copying costs one pointer
/// per chunk, a change afterwards copies one chunk. Not thread-safe; copies may be used on other threads.
template <class T>
class Column final {
public:
    [[nodiscard]] std::size_t size() const { return size_; }

    [[nodiscard]] T operator[](std::size_t index) const {
        return (*chunks_[index / chunkSize])[index % chunkSize];
    }
    /// The contiguous values from `begin` on, ending before `end`; at least one if `begin` < `end`.
    /// Valid until the column is modified.
    [[nodiscard]] std::span<const T> run(std::size_t begin, std::size_t end) const {
        if (begin >= end) return {};
        const auto place = begin % chunkSize;
        return {chunks_[begin / chunkSize]->data() + place, std::min(end - begin, chunkSize - place)};
    }
    [[nodiscard]] T back() const { return (*this)[size_ - 1]; }

    void set(std::size_t index, T value) { chunks_[index / chunkSize].edit()[index % chunkSize] = value; }

    void append(T value) {
        if (size_ % chunkSize == 0) chunks_.emplace_back();
        set(size_++, value);
    }

    /// Linear in the number of elements after `index`.
    void insert(std::size_t index, T value) {
        append(value);
        for (auto chunk = index / chunkSize; chunk < chunks_.size(); ++chunk) {
            auto& cells = chunks_[chunk].edit();
            const auto begin = cells.begin() + static_cast<std::ptrdiff_t>(index % chunkSize);
            const auto last = cells.begin() + static_cast<std::ptrdiff_t>(lastIn(chunk));
            const T carried = *last;
            std::copy_backward(begin, last, last + 1);
            *begin = value;
            value = carried;
            index = (chunk + 1) * chunkSize;
        }
    }

    /// Calls `change(T& value)` for each element from `index` on.
    template <class Change>
    void changeFrom(std::size_t index, Change&& change) {
        for (; index < size_; index = (index / chunkSize + 1) * chunkSize) {
            auto& cells = chunks_[index / chunkSize].edit();
            for (auto cell = index % chunkSize; cell <= lastIn(index / chunkSize); ++cell)
                change(cells[cell]);
        }
    }

private:
    // Cells that were never set are uninitialised.
    static constexpr std::size_t chunkSize = 2048;
    using Chunk = std::array<T, chunkSize>;

    [[nodiscard]] std::size_t lastIn(std::size_t chunk) const {
        return chunk + 1 < chunks_.size() ? chunkSize - 1 : (size_ - 1) % chunkSize;
    }

    std::vector<CopyOnWrite<Chunk>> chunks_;
    std::size_t size_ = 0;
};

}  // namespace tidewatch
