#pragma once

#include <map>
#include <utility>

#include "platform/api/applications.h"

namespace tidewatch::platform {

/// A registry filled by the test; initially empty.
class FakeApplications final : public Applications {
public:
    [[nodiscard]] std::optional<ApplicationInfo> info(const AppId& app) const override {
        ++lookupCount_;
        const auto found = registered_.find(app);
        return found == registered_.end() ? std::nullopt : std::optional(found->second);
    }
    [[nodiscard]] std::uint64_t revision() override { return revision_; }

    void registerApplication(const AppId& app, ApplicationInfo info) {
        registered_[app] = std::move(info);
        ++revision_;
    }
    void removeApplication(const AppId& app) {
        registered_.erase(app);
        ++revision_;
    }

    /// The number of calls of info().
    [[nodiscard]] int lookupCount() const { return lookupCount_; }

private:
    std::map<AppId, ApplicationInfo> registered_;
    std::uint64_t revision_ = 0;
    mutable int lookupCount_ = 0;
};

}  // namespace tidewatch::platform
