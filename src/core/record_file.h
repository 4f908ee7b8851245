#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/api/file_system.h"
#include "platform/api/log.h"

namespace tidewatch {

/// Reads a file of the data directory once and rewrites it as a whole; keeps none of its content.
///
/// Data that was not read is never overwritten. A file that could not be read or parsed is set aside before
/// the first write, with the suffix ".damaged-" and the day; so is, with ".other-", what another process
/// wrote while it held the directory. Both are logged. Not thread-safe, but may be used on any thread.
class RecordFile final {
public:
    /// `failure` is logged, followed by the reason, if a write fails; if empty, failures are silent. `files`
    /// and `log` must outlive it.
    RecordFile(platform::FileSystem& files, platform::Log& log, std::string_view name,
               std::string_view failure = {});

    /// Creates the data directory, reads the file and returns `parse(text)`, an optional that is empty for
    /// invalid text. Also empty for a missing or unreadable file. Silent.
    template <class Parse>
    [[nodiscard]] auto read(Parse&& parse) {
        auto text = readText();
        decltype(parse(std::string())) content;
        if (text) content = std::forward<Parse>(parse)(*std::move(text));
        if (content) unread_ = Unread::none;
        return content;
    }

    /// Returns whether `content` was written to disk. On failure logs, and the file is unchanged.
    bool write(const platform::ContentWriter& content);
    bool write(std::string_view content);

    /// Whether the last write() succeeded and the file has not been removed, replaced or modified since.
    [[nodiscard]] bool isAsWritten();

    /// Whether the file does not exist.
    [[nodiscard]] bool isMissing() const;

    [[nodiscard]] const std::string& directoryPath() const { return directory_; }
    [[nodiscard]] const std::string& path() const { return path_; }

private:
    // What the file may contain that has not been read.
    enum class Unread { none, damaged, foreign };

    [[nodiscard]] platform::RecordLock ensureLock();
    [[nodiscard]] std::optional<std::string> readText();
    [[nodiscard]] Result<platform::FileInfo> replace(const platform::ContentWriter& content);
    [[nodiscard]] Status setUnreadAside();

    platform::FileSystem& files_;
    platform::Log& log_;
    const std::string directory_;
    const std::string path_;
    const std::string failure_;
    Unread unread_ = Unread::damaged;
    std::optional<platform::FileInfo> written_;
};

}  // namespace tidewatch
