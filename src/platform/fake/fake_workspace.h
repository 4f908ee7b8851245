#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/api/workspace.h"

namespace tidewatch::platform {

/// A desktop as a test scripts it; at first no application is in front.
class FakeWorkspace final : public Workspace {
public:
    [[nodiscard]] std::optional<AppId> frontmostApplication() const override { return front_; }
    Outcome reveal(const std::string& path) override {
        revealed_.push_back(path);
        return revealOutcome_;
    }

    void setFrontmost(std::optional<AppId> app) { front_ = std::move(app); }
    void setRevealOutcome(Outcome outcome) { revealOutcome_ = std::move(outcome); }

    /// Every path that was asked to be revealed.
    [[nodiscard]] const std::vector<std::string>& revealed() const { return revealed_; }

private:
    std::optional<AppId> front_;
    Outcome revealOutcome_ = success();
    std::vector<std::string> revealed_;
};

}  // namespace tidewatch::platform
