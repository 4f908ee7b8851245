#include "wellbeing/break_reminder.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "core/settings.h"
#include "tests/support/fake_world.h"
#include "wellbeing/recording_notifier.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

class BreakReminderTest : public testing::Test {
protected:
    /// Active seconds, each with the same total of the day.
    void sit(int seconds, Seconds totalToday) {
        for (int i = 0; i < seconds; ++i) reminder_->tickActiveSecond(totalToday);
    }

    const std::vector<platform::UserNotification>& shownAfterARun() {
        world_.mainLoop.run();
        return notifier_.shown;
    }

    test::FakeWorld world_;
    Settings settings_{world_.preferences};
    DayRule dayRule_{world_.clock, settings_};
    test::RecordingNotifier notifier_;
    std::optional<BreakReminder> reminder_{std::in_place, dayRule_, world_.mainLoop, notifier_};
    const Seconds shortDay_{8 * 3600};
    const Seconds longDay_{8 * 3600 + 1};
};

TEST_F(BreakReminderTest, StartsWaiting) {
    EXPECT_EQ(reminder_->sittingSeconds(), Seconds(0));
    EXPECT_FALSE(reminder_->alertActive());
    EXPECT_EQ(reminder_->stretch(), Stretch::neck);
    EXPECT_EQ(reminder_->reason(), BreakReason(TwoHours()));
    EXPECT_EQ(reminder_->alertsToday(), 0);
    EXPECT_EQ(reminder_->lastResetDay(), DayKey("2026-01-15"));
}

TEST_F(BreakReminderTest, AtEightHoursExactlyTheThresholdIsStillTwoHours) {
    sit(7199, shortDay_);
    EXPECT_FALSE(reminder_->alertActive());
    sit(1, shortDay_);
    EXPECT_TRUE(reminder_->alertActive());
    EXPECT_EQ(reminder_->reason(), BreakReason(TwoHours()));
}

TEST_F(BreakReminderTest, ASecondBeyondEightHoursTheThresholdIsOneHourAndTheReasonEightHours) {
    sit(3599, longDay_);
    EXPECT_FALSE(reminder_->alertActive());
    sit(1, longDay_);
    EXPECT_TRUE(reminder_->alertActive());
    EXPECT_EQ(reminder_->reason(), BreakReason(LongDay{8}));
}

TEST_F(BreakReminderTest, TheHoursOfALongDayAreWholeOnes) {
    sit(3600, Seconds(32399));
    EXPECT_EQ(shownAfterARun().back().title, "💣 8h trabajadas hoy — toca pararse");
    reminder_->dismissAlert();
    sit(3600, Seconds(32400));
    EXPECT_EQ(shownAfterARun().back().title, "💣 9h trabajadas hoy — toca pararse");
}

TEST_F(BreakReminderTest, AThresholdThatDropsBelowTheCountFiresOnTheNextTick) {
    sit(7199, shortDay_);
    EXPECT_FALSE(reminder_->alertActive());
    sit(1, longDay_);
    EXPECT_TRUE(reminder_->alertActive());
    EXPECT_EQ(reminder_->reason(), BreakReason(LongDay{8}));
}

TEST_F(BreakReminderTest, EightAlertsOfADayRunThroughAllStretchesAndBackToTheNeck) {
    std::vector<Stretch> run;
    for (int i = 0; i < 8; ++i) {
        sit(3600, longDay_);
        ASSERT_TRUE(reminder_->alertActive());
        run.push_back(reminder_->stretch());
        reminder_->dismissAlert();
    }
    EXPECT_EQ(run, (std::vector{Stretch::neck, Stretch::shoulders, Stretch::back, Stretch::eyes,
                                Stretch::wrists, Stretch::hips, Stretch::fullBody, Stretch::neck}));
    EXPECT_EQ(reminder_->alertsToday(), 8);
}

TEST_F(BreakReminderTest, ADayChangeDuringAnAlertStartsTheCountsAfreshAndLeavesTheAlertUp) {
    sit(7200 + 10, shortDay_);
    ASSERT_TRUE(reminder_->alertActive());
    world_.clock.advance(24h);
    EXPECT_EQ(reminder_->alertsToday(), 1) << "noticed by the first active second only";
    sit(1, Seconds(1));
    EXPECT_TRUE(reminder_->alertActive());
    EXPECT_EQ(reminder_->alertsToday(), 0);
    EXPECT_EQ(reminder_->sittingSeconds(), Seconds(1));
    EXPECT_EQ(reminder_->lastResetDay(), DayKey("2026-01-16"));
}

TEST_F(BreakReminderTest, TheFirstAlertOfEachDayIsTheNeck) {
    sit(7200, shortDay_);
    reminder_->dismissAlert();
    sit(7200, shortDay_);
    EXPECT_EQ(reminder_->stretch(), Stretch::shoulders);
    reminder_->dismissAlert();
    world_.clock.advance(24h);
    sit(7200, shortDay_);
    EXPECT_EQ(reminder_->stretch(), Stretch::neck);
}

TEST_F(BreakReminderTest, TheDayIsTheLogicalOne) {
    settings_.setDayStartHour(10);
    BreakReminder reminder(dayRule_, world_.mainLoop, notifier_);
    EXPECT_EQ(reminder.lastResetDay(), DayKey("2026-01-14"));
}

TEST_F(BreakReminderTest, SittingDisplayPadsTheSmallerPart) {
    EXPECT_EQ(reminder_->sittingDisplay(), "0m 00s");
    sit(59, shortDay_);
    EXPECT_EQ(reminder_->sittingDisplay(), "0m 59s");
    sit(3599 - 59, shortDay_);
    EXPECT_EQ(reminder_->sittingDisplay(), "59m 59s");
    sit(1, shortDay_);
    EXPECT_EQ(reminder_->sittingDisplay(), "1h 00m");
    sit(7384 - 3600, shortDay_);
    EXPECT_EQ(reminder_->sittingDisplay(), "2h 03m");
}

TEST_F(BreakReminderTest, GoingIdleEndsTheSittingButNotTheAlert) {
    sit(7200, shortDay_);
    reminder_->userWentIdle();
    EXPECT_EQ(reminder_->sittingSeconds(), Seconds(0));
    EXPECT_TRUE(reminder_->alertActive());
    sit(5, shortDay_);
    EXPECT_EQ(reminder_->sittingDisplay(), "0m 05s") << "counts since the return";
}

TEST_F(BreakReminderTest, NoAlertIsRaisedWhileOneIsActive) {
    sit(3 * 7200, shortDay_);
    EXPECT_EQ(reminder_->alertsToday(), 1);
    EXPECT_EQ(reminder_->sittingSeconds(), Seconds(3 * 7200)) << "goes on counting";
    EXPECT_EQ(shownAfterARun().size(), 1u);
}

TEST_F(BreakReminderTest, DismissingRestartsTheSittingAndKeepsTheAlertCount) {
    sit(7300, shortDay_);
    reminder_->dismissAlert();
    EXPECT_FALSE(reminder_->alertActive());
    EXPECT_EQ(reminder_->sittingSeconds(), Seconds(0));
    EXPECT_EQ(reminder_->alertsToday(), 1);
    sit(7200, shortDay_);
    EXPECT_TRUE(reminder_->alertActive());
}

TEST_F(BreakReminderTest, TheMessageNamesReasonAndExercise) {
    sit(7200, shortDay_);
    EXPECT_EQ(shownAfterARun().back(),
              (platform::UserNotification{
                  "💣 Llevas 2 horas sentado",
                  "Hora de un descanso · Cuello: Tu cuello te va a dar gracias en 10 años."}));
    reminder_->dismissAlert();
    sit(3600, Seconds(36000));
    EXPECT_EQ(shownAfterARun().back(),
              (platform::UserNotification{
                  "💣 10h trabajadas hoy — toca pararse",
                  "Jornada larga · Hombros: Estirar 1 minuto te ahorra 1 hora de masaje."}));
    EXPECT_EQ(notifier_.shown.size(), 2u);
}

TEST_F(BreakReminderTest, TheAlertIsSeenBeforeTheMessageGoesOut) {
    sit(7199, shortDay_);
    int announced = 0;
    const auto connection = reminder_->changed.connect([&] {
        ++announced;
        EXPECT_TRUE(reminder_->alertActive());
        EXPECT_TRUE(notifier_.shown.empty());
    });
    sit(1, shortDay_);
    EXPECT_EQ(announced, 1);
    EXPECT_TRUE(notifier_.shown.empty()) << "one turn of the main loop later";
    EXPECT_EQ(shownAfterARun().size(), 1u);
}

TEST_F(BreakReminderTest, AMessageStillToBeSentIsDroppedWithTheReminder) {
    sit(7200, shortDay_);
    reminder_.reset();
    EXPECT_TRUE(shownAfterARun().empty());
}

TEST_F(BreakReminderTest, ChangesAreAnnouncedAndRepeatedIdlenessIsNot) {
    int announced = 0;
    const auto connection = reminder_->changed.connect([&] { ++announced; });
    sit(2, shortDay_);
    EXPECT_EQ(announced, 2);
    reminder_->userWentIdle();
    EXPECT_EQ(announced, 3);
    reminder_->userWentIdle();
    EXPECT_EQ(announced, 3);
    reminder_->dismissAlert();
    EXPECT_EQ(announced, 4);
}

}  // namespace
}  // namespace tidewatch
