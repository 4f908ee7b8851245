#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "base/seconds.h"
#include "core/counter_record.h"

namespace tidewatch {

/// Reads the leaves of a record in ascending order, much faster than looking them up one by one. The record
/// must outlive it and must not be modified meanwhile. Not thread-safe.
class LeafReader final {
public:
    explicit LeafReader(const CounterRecord& record) : record_(record) {}

    /// Calls `visit(std::uint32_t nameId, Seconds seconds)` for each leaf of a range.
    template <class Visitor>
    void forEach(CounterRecord::Range leaves, Visitor&& visit) {
        for (std::size_t next = leaves.begin; next < leaves.end;) {
            enter(next / CounterRecord::leafChunkSize);
            const auto begin = next % CounterRecord::leafChunkSize;
            const auto size = std::min(leaves.end - next, CounterRecord::leafChunkSize - begin);
            for (std::size_t i = begin; i < begin + size; ++i) visit(nameIds_[i], Seconds(counters_[i]));
            next += size;
        }
    }

private:
    void enter(std::size_t chunk) {
        if (chunk == chunk_) return;
        record_.readLeaves(chunk, nameIds_, counters_);
        chunk_ = chunk;
    }

    const CounterRecord& record_;
    std::optional<std::size_t> chunk_;  // the one that both arrays hold
    std::array<std::uint32_t, CounterRecord::leafChunkSize> nameIds_;
    std::array<std::int64_t, CounterRecord::leafChunkSize> counters_;
};

}  // namespace tidewatch
