#pragma once

#include <deque>
#include <utility>
#include <vector>

#include "platform/api/user_notifications.h"

namespace tidewatch::platform {

/// Keeps what is to be shown; its callbacks run when told. At first there is a newer service that takes
/// everything.
class FakeUserNotifications final : public UserNotifications {
public:
    [[nodiscard]] bool hasNewerService() const override { return newer_; }
    void requestAuthorization(std::function<void(AuthorizationAnswer)> answered) override {
        requests_.push_back(std::move(answered));
    }
    void deliver(const UserNotification& notification, std::function<void(Outcome)> delivered) override {
        delivered_.push_back(notification);
        unreported_.push_back(std::move(delivered));
    }
    void deliverOlder(const UserNotification& notification) override {
        older_.push_back(notification);
        if (showOlder_) showOlder_(notification);
    }
    void setOlderService(std::function<void(const UserNotification&)> show) override {
        showOlder_ = std::move(show);
    }

    void setNewerService(bool newer) { newer_ = newer; }

    /// Answers every request for authorization that waits.
    void answer(const AuthorizationAnswer& answer) {
        for (const auto& answered : std::exchange(requests_, {})) answered(answer);
    }

    /// Tells the same outcome for every delivery that waits for one.
    void report(const Outcome& outcome) {
        for (const auto& delivered : std::exchange(unreported_, {})) delivered(outcome);
    }

    [[nodiscard]] std::size_t waitingRequests() const { return requests_.size(); }

    /// What was handed to the newer service, failures included, and what to the older one.
    [[nodiscard]] const std::vector<UserNotification>& delivered() const { return delivered_; }
    [[nodiscard]] const std::vector<UserNotification>& deliveredOlder() const { return older_; }

private:
    bool newer_ = true;
    std::function<void(const UserNotification&)> showOlder_;
    std::deque<std::function<void(AuthorizationAnswer)>> requests_;
    std::deque<std::function<void(Outcome)>> unreported_;
    std::vector<UserNotification> delivered_;
    std::vector<UserNotification> older_;
};

}  // namespace tidewatch::platform
