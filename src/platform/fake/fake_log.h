#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "platform/api/log.h"

namespace tidewatch::platform {

/// Keeps what is logged. A warning that was not announced is a complaint, and so is an announced one that
/// never came, when this object ends. Safe from any thread.
class FakeLog final : public Log {
public:
    /// `reportFailure` says in words what a test has to fail for; called on the thread that logs.
    explicit FakeLog(std::function<void(const std::string&)> reportFailure);
    FakeLog(const FakeLog&) = delete;
    FakeLog& operator=(const FakeLog&) = delete;
    ~FakeLog() override;

    void warning(std::string_view message) override;
    void info(std::string_view message) override;

    /// One warning that holds `part` is to come.
    void expectWarning(std::string part);

    [[nodiscard]] std::vector<std::string> warnings() const;
    [[nodiscard]] std::vector<std::string> infos() const;

private:
    const std::function<void(const std::string&)> reportFailure_;
    mutable std::mutex mutex_;
    std::vector<std::string> warnings_;
    std::vector<std::string> infos_;
    std::vector<std::string> expected_;
};

}  // namespace tidewatch::platform
