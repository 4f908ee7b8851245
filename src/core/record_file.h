#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/api/file_system.h"
#include "platform/api/log.h"

namespace tidewatch {

/// One file of the record in the data directory: read once, then written whole, again and again.
///
/// Nothing that was not read is ever written over. A file that was there and could not be read, or was of
/// another shape, is set aside before the first write, under its name with ".damaged-" and the day behind,
/// and so, with ".other-", is what another process wrote while it had the directory; a line in the log says
/// so. Not safe from several threads; any one will do.
class RecordFile final {
public:
    /// `failure` stands in the log before the reason why a write failed; without it such a failure is silent.
    /// `files` and `log` must outlive it.
    RecordFile(platform::FileSystem& files, platform::Log& log, std::string_view name,
               std::string_view failure = {});

    /// Makes the data directory, reads the file, and gives what `parse` makes of its text: an optional, which
    /// is empty for a text of another shape. A missing or unreadable file gives an empty one too. Silent.
    template <class Parse>
    [[nodiscard]] auto read(Parse&& parse) {
        auto text = readText();
        decltype(parse(std::string())) content;
        if (text) content = std::forward<Parse>(parse)(*std::move(text));
        if (content) unread_ = Unread::none;
        return content;
    }

    /// Whether `content` is on the disk now. If not, the log tells why and the file holds what it held
    /// before.
    bool write(const platform::ContentWriter& content);
    bool write(std::string_view content);

    /// Whether the last write() succeeded and its file is still there, neither replaced nor changed since.
    [[nodiscard]] bool isAsWritten();

    /// Whether nothing has the file's name.
    [[nodiscard]] bool isMissing() const;

    [[nodiscard]] const std::string& directoryPath() const { return directory_; }
    [[nodiscard]] const std::string& path() const { return path_; }

private:
    // What the file may hold that this object has not read.
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
