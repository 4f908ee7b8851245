#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/api/workspace.h"

namespace tidewatch::platform {

/// A desktop as a test scripts it; at first no application is in front and none is registered.
class FakeWorkspace final : public Workspace {
public:
    [[nodiscard]] std::optional<AppId> frontmostApplication() const override { return front_; }
    [[nodiscard]] std::optional<ApplicationInfo> applicationInfo(const AppId& app) const override {
        ++questions_;
        const auto found = registered_.find(app);
        return found == registered_.end() ? std::nullopt : std::optional(found->second);
    }
    [[nodiscard]] std::uint64_t registryRevision() const override { return revision_; }
    [[nodiscard]] std::string documentsDirectory() const override { return "/home/user/Documentos"; }
    void reveal(const std::string& path, std::function<void(const Outcome&)> done) override {
        revealed_.push_back(path);
        done(revealOutcome_);
    }

    void setFrontmost(std::optional<AppId> app) { front_ = std::move(app); }
    void registerApplication(const AppId& app, ApplicationInfo info) {
        registered_[app] = std::move(info);
        ++revision_;
    }
    void removeApplication(const AppId& app) {
        registered_.erase(app);
        ++revision_;
    }
    void setRevealOutcome(Outcome outcome) { revealOutcome_ = std::move(outcome); }

    /// Every path that was asked to be revealed.
    [[nodiscard]] const std::vector<std::string>& revealed() const { return revealed_; }

    /// How often an application was asked for.
    [[nodiscard]] int questions() const { return questions_; }

private:
    std::optional<AppId> front_;
    std::map<AppId, ApplicationInfo> registered_;
    std::uint64_t revision_ = 0;
    mutable int questions_ = 0;
    Outcome revealOutcome_ = success();
    std::vector<std::string> revealed_;
};

}  // namespace tidewatch::platform
