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

/// The name and structure of a counter store's file.
struct CounterFormat {
    std::string_view fileName;
    std::size_t depth;             ///< the number of keys on the path to a counter, 1 to 3
    std::string_view flushFailed;  ///< the log message, to be followed by the reason
};

/// A counter record in memory and its file in the data directory: the common part of all counter stores.
/// Thread-safe. Only flush() blocks on the disk.
///
/// The file is read once, at construction, and written whole. Guarantee: the file on disk is always one
/// complete state, never a mix, and never an older state after a newer one.
class CounterFile final {
public:
    /// Creates the data directory and reads the file. A missing, unreadable or malformed file yields an empty
    /// record, silently; the next flush sets the file aside and writes a new one. Both references must
    /// outlive it.
    CounterFile(platform::FileSystem& files, platform::Log& log, const CounterFormat& format);

    /// Returns `reader(record)`; `reader` must not call into any store.
    template <class Reader>
    [[nodiscard]] auto read(Reader&& reader) const {
        const std::lock_guard lock(mutex_);
        return std::forward<Reader>(reader)(record_);
    }

    /// Calls `change(record)`, which returns whether it modified the record; it must not call into any store.
    template <class Change>
    void change(Change&& change) {
        const std::lock_guard lock(mutex_);
        if (std::forward<Change>(change)(record_)) ++revision_;
    }

    /// Writes the current state, changed or not, after any write in progress. On failure logs and keeps the
    /// state in memory; the next flush tries again.
    void flush();

    /// Writes the current state on `queue`, or that of a later flushOn() called before the queue gets to it.
    /// Skips the write if the file already holds that state and has not been replaced or modified since.
    /// Failures as with flush(). This object must outlive the queue.
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

    mutable std::mutex mutex_;  // held only briefly
    CounterRecord record_;
    std::uint64_t revision_ = 1;
    std::optional<Snapshot> waiting_;

    std::mutex writing_;  // held while the file is written; never locked while mutex_ is held
    RecordFile file_;
    std::uint64_t writtenRevision_ = 0;
};

}  // namespace tidewatch
