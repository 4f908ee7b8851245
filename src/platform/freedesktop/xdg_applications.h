#pragma once

#include "platform/api/applications.h"
#include "platform/freedesktop/desktop_entries.h"

namespace tidewatch::platform {

/// Applications from their desktop entries.
class XdgApplications final : public Applications {
public:
    /// `entries` must outlive this object.
    explicit XdgApplications(DesktopEntries& entries) : entries_(entries) {}

    [[nodiscard]] std::optional<ApplicationInfo> info(const AppId& app) const override;
    [[nodiscard]] std::uint64_t revision() override { return entries_.revision(); }

private:
    DesktopEntries& entries_;
};

}  // namespace tidewatch::platform
