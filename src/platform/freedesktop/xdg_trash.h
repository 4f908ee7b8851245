#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/api/clock.h"
#include "platform/api/trash.h"

namespace tidewatch::platform {

/// The content of a ".trashinfo" file: the path, percent-encoded, and the local time of the deletion.
[[nodiscard]] std::string trashInfo(std::string_view path, Instant now, std::chrono::seconds utcOffset);

/// The trash of the freedesktop.org specification: the user's own in the data directory for what is on the
/// same volume, otherwise that of the volume, ".Trash/<user>" or ".Trash-<user>". Nothing is copied between
/// volumes and nothing is overwritten.
class XdgTrash final : public Trash {
public:
    /// `dataDirectory` is $XDG_DATA_HOME.
    XdgTrash(const Clock& clock, std::string dataDirectory);

    Status moveToTrash(const std::string& path) override;

private:
    struct Place {
        std::string directory;  // with "files" and "info"
        std::string told;       // the path of the file as its information tells it
    };

    [[nodiscard]] Result<Place> placeFor(const std::string& path) const;
    [[nodiscard]] Status moveTo(const Place& place, const std::string& path) const;

    const Clock& clock_;
    const std::string dataDirectory_;
};

}  // namespace tidewatch::platform
