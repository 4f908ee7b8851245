#pragma once

#include <utility>
#include <vector>

#include "platform/api/desktop.h"

namespace tidewatch::platform {

/// A desktop whose file manager shows every file, unless the test makes it fail.
class FakeDesktop final : public Desktop {
public:
    [[nodiscard]] std::string documentsDirectory() const override { return "/home/user/Documentos"; }
    void reveal(const std::string& path, std::function<void(const Status&)> done) override {
        revealed_.push_back(path);
        done(revealStatus_);
    }

    void setRevealStatus(Status status) { revealStatus_ = std::move(status); }

    /// All paths passed to reveal().
    [[nodiscard]] const std::vector<std::string>& revealed() const { return revealed_; }

private:
    Status revealStatus_ = success();
    std::vector<std::string> revealed_;
};

}  // namespace tidewatch::platform
