#pragma once

#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "base/serial_queue.h"
#include "core/record_file.h"
#include "platform/api/file_system.h"
#include "platform/api/log.h"

namespace tidewatch {

/// A small file of the record that is written at each change, which may be far away: it keeps the text that
/// the file is to hold, so that a file that goes missing can be written again before that. Safe from any
/// thread.
class KeptFile final {
public:
    /// As with RecordFile.
    KeptFile(platform::FileSystem& files, platform::Log& log, std::string_view name,
             std::string_view failure = {})
        : file_(files, log, name, failure) {}

    /// As with RecordFile::read(); `parse` must not call into this object.
    template <class Parse>
    [[nodiscard]] auto read(Parse&& parse) {
        const std::lock_guard lock(mutex_);
        return file_.read([&](std::string text) {
            auto content = parse(text);
            if (content) text_ = std::move(text);
            return content;
        });
    }

    /// As with RecordFile::write(), after a write that is under way.
    bool write(std::string content);

    /// Lets `queue` write the file again if it is missing: with the text that was last read or given to
    /// write(). Without one, the file was never there and is not made. Failures as with write(). This object
    /// must outlive the queue.
    void restoreOn(JobQueue& queue);

    [[nodiscard]] const std::string& path() const { return file_.path(); }

private:
    void restore();

    std::mutex mutex_;  // held while the file is read or written
    RecordFile file_;
    std::optional<std::string> text_;
};

}  // namespace tidewatch
