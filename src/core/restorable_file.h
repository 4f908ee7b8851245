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

/// A RecordFile that keeps its content in memory, so that it can be restored if the file goes missing. For
/// small files that are only written on changes, unlike the counter files. Thread-safe.
class RestorableFile final {
public:
    /// As with RecordFile.
    RestorableFile(platform::FileSystem& files, platform::Log& log, std::string_view name,
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

    /// As with RecordFile::write(), after any write in progress.
    bool write(std::string content);

    /// Rewrites the file on `queue` if it is missing, with the content last read or written. Without such
    /// content the file never existed and is not created. Failures as with write(). This object must outlive
    /// the queue.
    void restoreOn(JobQueue& queue);

    [[nodiscard]] const std::string& path() const { return file_.path(); }

private:
    void restore();

    std::mutex mutex_;  // held while the file is read or written
    RecordFile file_;
    std::optional<std::string> text_;
};

}  // namespace tidewatch
