#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "base/copy_on_write.h"
#include "core/packed_chunk.h"

namespace tidewatch {

/// A long sequence of integers that rarely change, stored in copy-on-write chunks: copying costs one pointer
/// per chunk, a change afterwards copies one chunk. Each chunk is as narrow as its values allow. Not
/// thread-safe; copies may be used on other threads.
template <class T>
class Column final {
public:
    /// Takes the values of one run.
    using Buffer = std::array<T, PackedChunk<T>::capacity>;

    [[nodiscard]] std::size_t size() const { return size_; }

    [[nodiscard]] T operator[](std::size_t index) const {
        return (*chunks_[index / chunkSize])[index % chunkSize];
    }
    [[nodiscard]] T back() const { return (*this)[size_ - 1]; }

    /// The values from `begin` on that lie together before `end`, copied into `buffer`; at least one if
    /// `begin` < `end`.
    [[nodiscard]] std::span<const T> read(std::size_t begin, std::size_t end, Buffer& buffer) const {
        if (begin >= end) return {};
        const auto place = begin % chunkSize;
        const auto run = std::span(buffer).first(std::min(end - begin, chunkSize - place));
        chunks_[begin / chunkSize]->read(place, run);
        return run;
    }

    void set(std::size_t index, T value) { chunks_[index / chunkSize].edit().set(index % chunkSize, value); }

    void append(T value) {
        if (size_ % chunkSize == 0) chunks_.emplace_back();
        chunks_.back().edit().insert(size_++ % chunkSize, value);
    }

    /// Linear in the number of elements after `index`.
    void insert(std::size_t index, T value) {
        auto place = index % chunkSize;
        for (auto i = index / chunkSize; i < chunks_.size() && index < size_; ++i) {
            auto& chunk = chunks_[i].edit();
            if (!chunk.isFull()) {
                chunk.insert(place, value);
                ++size_;
                return;
            }
            const T last = chunk[chunkSize - 1];
            chunk.removeLast();
            chunk.insert(place, value);
            value = last;
            place = 0;
        }
        append(value);
    }

    /// Adds to each element from `index` on; none may overflow.
    void addFrom(std::size_t index, T amount) {
        for (; index < size_ && index % chunkSize != 0; ++index) set(index, (*this)[index] + amount);
        for (auto i = index / chunkSize; index < size_ && i < chunks_.size(); ++i) {
            chunks_[i].edit().addToAll(amount);
        }
    }

private:
    static constexpr std::size_t chunkSize = PackedChunk<T>::capacity;

    std::vector<CopyOnWrite<PackedChunk<T>>> chunks_;
    std::size_t size_ = 0;
};

}  // namespace tidewatch
