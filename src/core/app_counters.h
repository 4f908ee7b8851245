#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/named_string.h"
#include "base/seconds.h"
#include "core/app_seconds.h"
#include "core/store_frame.h"
#include "core/usage_snapshot.h"
#include "platform/api/frontmost_application.h"

namespace tidewatch {

/// What the stores of seconds per key and application share; the key is a day, an hour or a bucket. Safe
/// from any thread, but for incrementCurrentApp, which asks for the application in front and is for the main
/// thread.
class UsageFrame final {
public:
    /// `format` is two levels deep. The references must outlive it.
    UsageFrame(platform::FileSystem& files, platform::Log& log, platform::FrontmostApplication& frontmost,
               const StoreFormat& format);

    /// Books one second to the application in front, if there is one that can be booked.
    void incrementCurrentApp(std::string_view key);

    /// Books one second to `app`, whichever it is.
    void incrementApp(const AppId& app, std::string_view key);

    /// The applications of `key` in ascending order of their identifiers; none for an unknown key.
    [[nodiscard]] std::vector<AppSeconds> entries(std::string_view key) const;

    /// The sum over entries().
    [[nodiscard]] Seconds seconds(std::string_view key) const;

    [[nodiscard]] UsageSnapshot snapshot() const;

    void flush() { frame_.flush(); }

    [[nodiscard]] const std::string& filePath() const { return frame_.filePath(); }

private:
    platform::FrontmostApplication& frontmost_;
    StoreFrame frame_;
};

}  // namespace tidewatch
