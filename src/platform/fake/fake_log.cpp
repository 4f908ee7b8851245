#include "platform/fake/fake_log.h"

#include <algorithm>
#include <utility>

namespace tidewatch::platform {

FakeLog::FakeLog(std::function<void(const std::string&)> reportFailure)
    : reportFailure_(std::move(reportFailure)) {}

FakeLog::~FakeLog() {
    for (const auto& part : expected_) reportFailure_("an announced warning never came: " + part);
}

void FakeLog::warning(std::string_view message) {
    bool announced = false;
    {
        const std::lock_guard lock(mutex_);
        warnings_.emplace_back(message);
        const auto match = std::ranges::find_if(
            expected_, [&](const auto& part) { return message.find(part) != std::string_view::npos; });
        announced = match != expected_.end();
        if (announced) expected_.erase(match);
    }
    if (!announced) reportFailure_("a warning that was not announced: " + std::string(message));
}

void FakeLog::info(std::string_view message) {
    const std::lock_guard lock(mutex_);
    infos_.emplace_back(message);
}

void FakeLog::expectWarning(std::string part) {
    const std::lock_guard lock(mutex_);
    expected_.push_back(std::move(part));
}

std::vector<std::string> FakeLog::warnings() const {
    const std::lock_guard lock(mutex_);
    return warnings_;
}

std::vector<std::string> FakeLog::infos() const {
    const std::lock_guard lock(mutex_);
    return infos_;
}

}  // namespace tidewatch::platform
