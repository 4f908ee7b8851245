#pragma once

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "base/serial_queue.h"
#include "core/counter_record.h"
#include "core/record_file.h"
#include "platform/api/file_system.h"
#include "platform/api/log.h"

namespace tidewatch {

/// What one counter store's file is called and how it looks.
struct CounterFormat {
    std::string_view fileName;
    std::size_t depth;             ///< how many keys lead to a counter, 1 to 3
    std::string_view flushFailed;  ///< what stands in the log before the reason
};

/// A record of counters in memory and its file in the data directory: what all counter stores share. Safe
/// from any thread. Nobody waits for the disk but who calls flush().
///
/// The file is read once, at construction, and written whole. Promise: the file on disk is always a whole
/// earlier or later state, never a mix, and never an earlier one after a later one.
class CounterFile final {
public:
    /// Makes the data directory and reads the file. One that is missing, unreadable or of another shape is
    /// an empty record, without a word; the next flush sets it aside and writes its own. Both references must
    /// outlive it.
    CounterFile(platform::FileSystem& files, platform::Log& log, const CounterFormat& format);

    /// What `reader` makes of the record; it must not call into any store.
    template <class Reader>
    [[nodiscard]] auto read(Reader&& reader) const {
        const std::lock_guard lock(mutex_);
        return std::forward<Reader>(reader)(record_);
    }

    /// Lets `change` alter the record and tell whether it did; it must not call into any store.
    template <class Change>
    void change(Change&& change) {
        const std::lock_guard lock(mutex_);
        if (std::forward<Change>(change)(record_)) ++revision_;
    }

    /// Writes the present state, changed or not, after a write that is under way. On failure logs and keeps
    /// memory as it is; the next flush tries again.
    void flush();

    /// Lets `queue` write the present state, or the state of a later flushOn() that comes before the queue
    /// gets to it. A file that holds that state already, and still is the one that was written, is left
    /// alone. Failures as with flush(). This object must outlive the queue.
    void flushOn(JobQueue& queue);

    [[nodiscard]] const std::string& directoryPath() const { return file_.directoryPath(); }
    [[nodiscard]] const std::string& path() const { return file_.path(); }

private:
    struct Snapshot {
        CounterRecord record;
        std::uint64_t revision;
    };

    [[nodiscard]] Snapshot snapshot() const;
    void flushWaiting();
    void write(const Snapshot& snapshot);

    mutable std::mutex mutex_;  // held for moments only
    CounterRecord record_;
    std::uint64_t revision_ = 1;
    std::optional<Snapshot> waiting_;

    std::mutex writing_;  // held while the file is written, and never taken with the other one held
    RecordFile file_;
    std::uint64_t writtenRevision_ = 0;
};

}  // namespace tidewatch
