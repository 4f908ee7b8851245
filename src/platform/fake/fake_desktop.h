#pragma once

#include <utility>
#include <vector>

#include "platform/api/desktop.h"

namespace tidewatch::platform {

/// A desktop whose file manager shows every file, unless a test has it fail.
class FakeDesktop final : public Desktop {
public:
    [[nodiscard]] std::string documentsDirectory() const override { return "/home/user/Documentos"; }
    void reveal(const std::string& path, std::function<void(const Outcome&)> done) override {
        revealed_.push_back(path);
        done(revealOutcome_);
    }

    void setRevealOutcome(Outcome outcome) { revealOutcome_ = std::move(outcome); }

    /// Every path that was asked to be revealed.
    [[nodiscard]] const std::vector<std::string>& revealed() const { return revealed_; }

private:
    Outcome revealOutcome_ = success();
    std::vector<std::string> revealed_;
};

}  // namespace tidewatch::platform
