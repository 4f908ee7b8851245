#pragma once

#include <deque>
#include <utility>
#include <vector>

#include "platform/api/user_notifications.h"

namespace tidewatch::platform {

/// Records notifications; callbacks are triggered by the test. Initially there is a modern service.
class FakeUserNotifications final : public UserNotifications {
public:
    [[nodiscard]] bool hasModernService() const override { return modern_; }
    void requestAuthorization(std::function<void(AuthorizationResult)> answered) override {
        requests_.push_back(std::move(answered));
    }
    void deliver(const UserNotification& notification, std::function<void(Status)> delivered) override {
        delivered_.push_back(notification);
        unreported_.push_back(std::move(delivered));
    }
    void deliverLegacy(const UserNotification& notification) override {
        legacy_.push_back(notification);
        if (showLegacy_) showLegacy_(notification);
    }
    void setLegacyService(std::function<void(const UserNotification&)> show) override {
        showLegacy_ = std::move(show);
    }

    void setModernService(bool newer) { modern_ = newer; }

    /// Answers all pending authorization requests.
    void answer(const AuthorizationResult& answer) {
        for (const auto& answered : std::exchange(requests_, {})) answered(answer);
    }

    /// Reports the same status for all pending deliveries.
    void report(const Status& status) {
        for (const auto& delivered : std::exchange(unreported_, {})) delivered(status);
    }

    [[nodiscard]] std::size_t waitingRequests() const { return requests_.size(); }

    /// What was passed to the modern service, failures included, and to the legacy one.
    [[nodiscard]] const std::vector<UserNotification>& delivered() const { return delivered_; }
    [[nodiscard]] const std::vector<UserNotification>& deliveredLegacy() const { return legacy_; }

private:
    bool modern_ = true;
    std::function<void(const UserNotification&)> showLegacy_;
    std::deque<std::function<void(AuthorizationResult)>> requests_;
    std::deque<std::function<void(Status)>> unreported_;
    std::vector<UserNotification> delivered_;
    std::vector<UserNotification> legacy_;
};

}  // namespace tidewatch::platform
