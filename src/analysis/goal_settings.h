#pragma once

namespace tidewatch {

/// The user's goals.
struct GoalSettings {
    double dailyHours = 6.0;           ///< hours per day
    double dailyProductivity = 0.8;    ///< score of a day, a fraction from 0 to 1
    double weeklyHours = 35.0;         ///< hours per week
    double monthlyHours = 140.0;       ///< hours per month
    bool notificationsEnabled = true;  ///< whether reaching the day's goal is notified

    bool operator==(const GoalSettings&) const = default;
};

}  // namespace tidewatch
