#pragma once

#include <cstddef>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>

#include "core/counter_record.h"
#include "core/record_file.h"
#include "platform/api/file_system.h"
#include "platform/api/log.h"

namespace tidewatch {

/// What one counter store's file is called and how it looks.
struct StoreFormat {
    std::string_view fileName;
    std::size_t depth;             ///< how many keys lead to a counter, 1 to 3
    std::string_view flushFailed;  ///< what stands in the log before the reason
};

/// What all counter stores share: a record in memory, one file for it in the data directory, one mutex
/// around both. Safe from any thread; holds the mutex for the length of a flush, and calls nobody but the
/// file system while it holds it.
///
/// The file is read once, at construction, and written whole at each flush, whether anything has changed or
/// not. Promise: the file on disk is always a whole earlier or later state, never a mix.
class StoreFrame final {
public:
    /// Makes the data directory and reads the file. One that is missing, unreadable or of another shape is
    /// an empty record, without a word; the next flush sets it aside and writes its own. Both references must
    /// outlive it.
    StoreFrame(platform::FileSystem& files, platform::Log& log, const StoreFormat& format);

    /// What `reader` makes of the record; it must not call into any store.
    template <class Reader>
    [[nodiscard]] auto read(Reader&& reader) const {
        const std::lock_guard lock(mutex_);
        return std::forward<Reader>(reader)(record_);
    }

    /// Lets `change` alter the record; it must not call into any store.
    template <class Change>
    void change(Change&& change) {
        const std::lock_guard lock(mutex_);
        std::forward<Change>(change)(record_);
    }

    /// Writes the file. On failure logs and keeps memory as it is; the next flush tries again.
    void flush();

    [[nodiscard]] const std::string& directoryPath() const { return file_.directoryPath(); }
    [[nodiscard]] const std::string& filePath() const { return file_.path(); }

private:
    mutable std::mutex mutex_;
    RecordFile file_;
    CounterRecord record_;
};

}  // namespace tidewatch
