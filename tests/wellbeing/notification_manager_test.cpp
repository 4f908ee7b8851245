#include "wellbeing/notification_manager.h"

#include <gtest/gtest.h>

#include <optional>
#include <thread>

#include "core/settings.h"
#include "tests/support/fake_world.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;
using platform::UserNotification;
using Messages = std::vector<UserNotification>;

const UserNotification message{"título", "texto"};

class NotificationManagerTest : public testing::Test {
protected:
    /// The next start, on the same preferences.
    void start() {
        manager_.emplace(service_, world_.mainLoop, world_.preferences, world_.log, goals_, daily_);
    }

    /// A start with this answer to the permission request.
    void start(const platform::AuthorizationResult& answer) {
        start();
        manager_->requestAuthorization();
        service_.answer(answer);
        world_.mainLoop.run();
    }

    void check(int secondsToday) {
        daily_.set(Seconds(secondsToday), daily_.today());
        manager_->checkDailyMilestones();
    }

    test::FakeWorld world_;
    platform::FakeUserNotifications& service_ = world_.notifications;
    Settings settings_{world_.preferences};
    DayRule dayRule_{world_.clock, settings_};
    DailyStore daily_{world_.files, world_.log, dayRule_};
    GoalStore goals_{world_.files, world_.log};
    std::optional<NotificationManager> manager_;
    const int goal_ = 6 * 3600;
};

TEST_F(NotificationManagerTest, ANotificationUsesTheModernService) {
    start({.granted = true, .error = {}});
    EXPECT_TRUE(manager_->authorized());
    EXPECT_FALSE(manager_->useFallback());
    manager_->notify(message);
    service_.report(success());
    world_.mainLoop.run();
    EXPECT_EQ(service_.delivered(), Messages{message});
    EXPECT_TRUE(service_.deliveredLegacy().empty());
}

TEST_F(NotificationManagerTest, ANotificationNeedsNoPermissionFirst) {
    start();
    manager_->requestAuthorization();
    EXPECT_FALSE(manager_->authorized());
    manager_->notify(message);
    EXPECT_EQ(service_.delivered(), Messages{message});
}

TEST_F(NotificationManagerTest, WithoutAModernServiceTheLegacyOneIsUsedWithoutAskingForPermission) {
    service_.setModernService(false);
    start();
    manager_->notify(message);
    EXPECT_EQ(service_.deliveredLegacy(), Messages{message}) << "even before the request";
    manager_->requestAuthorization();
    EXPECT_EQ(service_.waitingRequests(), 0u);
    EXPECT_TRUE(manager_->useFallback());
    manager_->fireOnce("key", message);
    check(goal_);
    EXPECT_EQ(service_.deliveredLegacy().size(), 3u);
    EXPECT_TRUE(service_.delivered().empty());
}

TEST_F(NotificationManagerTest, ARefusalIsNoFailure) {
    start({.granted = false, .error = {}});
    EXPECT_FALSE(manager_->authorized());
    EXPECT_FALSE(manager_->useFallback());
    manager_->notify(message);
    EXPECT_EQ(service_.delivered(), Messages{message});
}

TEST_F(NotificationManagerTest, AFailedRequestIsLoggedAndSwitchesToTheLegacyService) {
    world_.log.expectWarning("Notif auth error: no centre");
    start({.granted = true, .error = Error{"no centre"}});
    EXPECT_TRUE(manager_->useFallback());
    EXPECT_TRUE(manager_->authorized()) << "recorded in all cases";
    manager_->notify(message);
    EXPECT_EQ(service_.deliveredLegacy(), Messages{message});
    EXPECT_TRUE(service_.delivered().empty());

    start({.granted = true, .error = {}});
    EXPECT_FALSE(manager_->useFallback()) << "the next start tries again";
}

TEST_F(NotificationManagerTest, TheAnswerIsTakenOnTheMainThread) {
    start();
    manager_->requestAuthorization();
    std::thread([&] { service_.answer({.granted = true, .error = {}}); }).join();
    EXPECT_FALSE(manager_->authorized());
    world_.mainLoop.run();
    EXPECT_TRUE(manager_->authorized());
}

TEST_F(NotificationManagerTest, AFailedDeliveryIsLoggedAndUsesTheLegacyServiceOnTheMainThread) {
    start({.granted = true, .error = {}});
    manager_->notify(message);
    world_.log.expectWarning("Notif deliver error: no service");
    std::thread([&] { service_.report(Error{"no service"}); }).join();
    EXPECT_TRUE(service_.deliveredLegacy().empty());
    world_.mainLoop.run();
    EXPECT_EQ(service_.deliveredLegacy(), Messages{message});
}

TEST_F(NotificationManagerTest, AfterAFailedDeliveryTheModernServiceIsTriedAgain) {
    start({.granted = true, .error = {}});
    manager_->notify(message);
    world_.log.expectWarning("Notif deliver error: busy");
    service_.report(Error{"busy"});
    world_.mainLoop.run();
    EXPECT_FALSE(manager_->useFallback());
    manager_->notify(message);
    EXPECT_EQ(service_.delivered().size(), 2u);
    EXPECT_EQ(service_.deliveredLegacy().size(), 1u);
}

TEST_F(NotificationManagerTest, ReportsAfterDestructionAreDropped) {
    start();
    manager_->requestAuthorization();
    manager_->notify(message);
    manager_.reset();
    world_.log.expectWarning("Notif deliver error: late");
    service_.answer({.granted = false, .error = Error{"late"}});
    service_.report(Error{"late"});
    world_.mainLoop.run();
    EXPECT_TRUE(service_.deliveredLegacy().empty());
}

TEST_F(NotificationManagerTest, NotifyRepeatsAndFireOnceDoesNot) {
    start();
    manager_->notify(message);
    manager_->notify(message);
    EXPECT_EQ(service_.delivered().size(), 2u);
    manager_->fireOnce("key", message);
    manager_->fireOnce("key", message);
    EXPECT_EQ(service_.delivered().size(), 3u);
    manager_->fireOnce("other", message);
    EXPECT_EQ(service_.delivered().size(), 4u);
    EXPECT_TRUE(world_.preferences.boolean("notif-key"));
}

TEST_F(NotificationManagerTest, AFailedDeliveryCountsAsSeen) {
    start();
    manager_->fireOnce("key", message);
    world_.log.expectWarning("Notif deliver error: gone");
    service_.report(Error{"gone"});
    world_.mainLoop.run();
    manager_->fireOnce("key", message);
    EXPECT_EQ(service_.delivered().size(), 1u);
    EXPECT_EQ(service_.deliveredLegacy().size(), 1u);
}

TEST_F(NotificationManagerTest, AGoalOfZeroHoursHasNoMilestones) {
    start();
    goals_.setSettings({.dailyHours = 0});
    check(0);
    check(100'000);
    goals_.setSettings({.dailyHours = -1});
    check(100'000);
    EXPECT_TRUE(service_.delivered().empty());
}

TEST_F(NotificationManagerTest, EachMilestoneIsNotifiedOnce) {
    start();
    check(goal_ * 85 / 100);
    check(goal_ * 85 / 100);
    EXPECT_EQ(service_.delivered().size(), 1u);
    check(goal_);
    EXPECT_EQ(service_.delivered().size(), 2u);
    EXPECT_NE(service_.delivered()[0], service_.delivered()[1]);
    check(goal_ + 1);
    EXPECT_EQ(service_.delivered().size(), 2u);
}

TEST_F(NotificationManagerTest, ARestartOnTheSameDayRepeatsNothing) {
    start();
    check(goal_);
    start();
    check(goal_ + 5);
    EXPECT_EQ(service_.delivered().size(), 1u);
    world_.clock.advance(24h);
    check(goal_);
    EXPECT_EQ(service_.delivered().size(), 2u) << "a new day is told anew";
}

TEST_F(NotificationManagerTest, AStartPastTheGoalNotifiesTheGoalOnly) {
    start();
    check(goal_ + 100);
    ASSERT_EQ(service_.delivered().size(), 1u);
    EXPECT_EQ(service_.delivered()[0].title, "Meta diaria cumplida ⭐");
    EXPECT_TRUE(world_.preferences.boolean("notif-goal100-2026-01-15"));
    EXPECT_FALSE(world_.preferences.contains("notif-goal80-2026-01-15"));
}

TEST_F(NotificationManagerTest, BelowFourFifthsNothingIsNotified) {
    start();
    check(0);
    check(goal_ * 8 / 10 - 1);
    EXPECT_TRUE(service_.delivered().empty());
    check(goal_ * 8 / 10);
    EXPECT_EQ(service_.delivered().size(), 1u);
    EXPECT_TRUE(world_.preferences.boolean("notif-goal80-2026-01-15"));
}

TEST_F(NotificationManagerTest, WithGoalsNotToBeToldNothingIsAndNothingIsMarked) {
    start();
    goals_.setSettings({.notificationsEnabled = false});
    check(goal_);
    EXPECT_TRUE(service_.delivered().empty());
    goals_.setSettings({.notificationsEnabled = true});
    check(goal_);
    EXPECT_EQ(service_.delivered().size(), 1u);
}

TEST_F(NotificationManagerTest, TheTextsNameTheTimeAndTheWholeHoursOfTheGoal) {
    start();
    goals_.setSettings({.dailyHours = 7.5});
    check(6 * 3600 + 5 * 60 + 59);
    check(7 * 3600 + 30 * 60);
    EXPECT_EQ(service_.delivered(),
              (Messages{{"Casi lo logras", "Vas al 80% de tu meta diaria (6h 5m de 7h). Un último empujón."},
                        {"Meta diaria cumplida ⭐", "Llevas 7h 30m hoy — superaste tu meta de 7h. ¡Bien!"}}));
}

TEST_F(NotificationManagerTest, LessThanAnHourIsGivenInMinutes) {
    start();
    goals_.setSettings({.dailyHours = 0.75});
    check(45 * 60);
    EXPECT_EQ(service_.delivered().back().body, "Llevas 45m hoy — superaste tu meta de 0h. ¡Bien!");
}

TEST_F(NotificationManagerTest, TheDayIsTheLogicalOne) {
    settings_.setDayStartHour(10);
    start();
    check(goal_);
    EXPECT_TRUE(world_.preferences.boolean("notif-goal100-2026-01-14"));
}

}  // namespace
}  // namespace tidewatch
