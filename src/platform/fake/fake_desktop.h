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

    [[nodiscard]] DesktopWords words() const override { return words_; }

    void setWords(DesktopWords words) { words_ = std::move(words); }
    void setRevealStatus(Status status) { revealStatus_ = std::move(status); }

    /// All paths passed to reveal().
    [[nodiscard]] const std::vector<std::string>& revealed() const { return revealed_; }

private:
    DesktopWords words_{.revealInFileManager = "Revelar en Archivos", .unnamedVolume = "Sistema"};
    Status revealStatus_ = success();
    std::vector<std::string> revealed_;
};

}  // namespace tidewatch::platform
