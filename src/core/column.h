#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "base/copy_on_write.h"
#include "core/packed_chunk.h"
#include "core/plain_chunk.h"

namespace tidewatch {

/// A long sequence of integers that rarely change, stored in copy-on-write chunks: copying costs one pointer
/// per chunk, a change afterwards copies one chunk. Not thread-safe; copies may be used on other threads.
template <class Chunk>
class ChunkedColumn final {
    using T = typename Chunk::Value;

public:
    static constexpr std::size_t chunkSize = Chunk::capacity;

    [[nodiscard]] std::size_t size() const { return size_; }

    [[nodiscard]] T operator[](std::size_t index) const {
        return (*chunks_[index / chunkSize])[index % chunkSize];
    }
    [[nodiscard]] T back() const { return (*this)[size_ - 1]; }

    /// Copies the elements from `chunk` * chunkSize on into `target`, as many as there are or fit. For packed
    /// columns, which take longer element by element.
    void readChunk(std::size_t chunk, std::array<T, chunkSize>& target) const {
        chunks_[chunk]->read(target);
    }

    void set(std::size_t index, T value) { chunks_[index / chunkSize].edit().set(index % chunkSize, value); }

    void append(T value) {
        if (size_ % chunkSize == 0) chunks_.emplace_back();
        chunks_.back().edit().append(value);
        ++size_;
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
    std::vector<CopyOnWrite<Chunk>> chunks_;
    std::size_t size_ = 0;
};

/// A column that is looked up element by element.
template <class T>
using Column = ChunkedColumn<PlainChunk<T>>;

/// A column of a fraction of the size, for small numbers that are read chunk by chunk.
template <class T>
using PackedColumn = ChunkedColumn<PackedChunk<T>>;

}  // namespace tidewatch
