#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

#include "core/counter_record.h"
#include "core/leaf_reader.h"

namespace tidewatch {

/// An immutable snapshot of a store of seconds per key (an hour, a bucket) and application. Copy-on-write, so
/// that taking one is cheap.
///
/// Keys are in bytewise order and as they are in the file, malformed ones included. Applications are numbered
/// from 0 to appCount() - 1, so that callers can keep per-application data in a vector.
class UsageSnapshot final {
public:
    using Index = CounterRecord::Index;

    /// `record` is two levels deep.
    explicit UsageSnapshot(CounterRecord record) : record_(std::move(record)) {}

    [[nodiscard]] Index keyCount() const { return record_.top().size(); }
    [[nodiscard]] std::string_view key(Index key) const { return record_.text(0, key); }

    [[nodiscard]] std::uint32_t appCount() const { return record_.nameCount(); }
    [[nodiscard]] std::string_view app(std::uint32_t app) const { return record_.name(app); }

    /// Reads key after key. The snapshot must outlive it.
    class Reader final {
    public:
        explicit Reader(const UsageSnapshot& snapshot) : record_(snapshot.record_), leaves_(record_) {}

        /// Calls `visit(std::uint32_t app, Seconds seconds)` for each application of a key.
        template <class Visitor>
        void forEachApp(Index key, Visitor&& visit) {
            leaves_.forEach(record_.children(0, key), std::forward<Visitor>(visit));
        }

    private:
        const CounterRecord& record_;
        LeafReader leaves_;
    };

private:
    CounterRecord record_;
};

}  // namespace tidewatch
