#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

#include "core/counter_record.h"

namespace tidewatch {

/// A copy of all that a store of seconds per key (an hour, a bucket) and application holds; later bookings
/// do not reach it. Flat: ten years of ten-minute buckets are copied in a millisecond or two.
///
/// Keys stand in ascending order of their bytes, as the file gives them, so ones of odd shape included.
/// Applications are numbered from 0 to appCount() - 1, so that what a reader works out for each of them can
/// stand in a plain sequence.
class UsageSnapshot final {
public:
    using Index = CounterRecord::Index;

    /// `record` is two levels deep.
    explicit UsageSnapshot(CounterRecord record) : record_(std::move(record)) {}

    [[nodiscard]] Index keyCount() const { return record_.top().size(); }
    [[nodiscard]] std::string_view key(Index key) const { return record_.text(0, key); }

    [[nodiscard]] std::uint32_t appCount() const { return record_.nameCount(); }
    [[nodiscard]] std::string_view app(std::uint32_t app) const { return record_.name(app); }

    /// Calls `visit(std::uint32_t app, Seconds seconds)` for each application of a key.
    template <class Visitor>
    void forEachApp(Index key, Visitor&& visit) const {
        const auto apps = record_.children(0, key);
        for (auto app = apps.begin; app < apps.end; ++app) {
            visit(record_.nameId(1, app), record_.seconds(app));
        }
    }

private:
    CounterRecord record_;
};

}  // namespace tidewatch
