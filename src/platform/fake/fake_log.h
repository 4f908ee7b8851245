#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "platform/api/log.h"

namespace tidewatch::platform {

/// Records log messages. Reports a failure for an unexpected warning and, on destruction, for an expected one
/// that never came. Thread-safe.
class FakeLog final : public Log {
public:
    /// `reportFailure` fails the test with a message; called on the thread that logs.
    explicit FakeLog(std::function<void(const std::string&)> reportFailure);
    FakeLog(const FakeLog&) = delete;
    FakeLog& operator=(const FakeLog&) = delete;
    ~FakeLog() override;

    void warning(std::string_view message) override;
    void info(std::string_view message) override;

    /// Expects one warning that contains `part`.
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
