#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "analysis/report_data.h"

namespace tidewatch::test {

/// A month to report on.
struct ReportCase {
    std::string name;
    ReportData data;
};

/// For the name of a test.
inline void PrintTo(const ReportCase& month, std::ostream* out) {
    *out << month.name;
}

inline Seconds hours(double count) {
    return Seconds(static_cast<std::int64_t>(count * 3600));
}

inline ReportData emptyMonth() {
    ReportData data;
    data.periodTitle = "MES · Noviembre 2026";
    data.recordDay = "—";
    data.goals = {GoalProgress{.label = "Hoy", .targetSeconds = hours(6)},
                  GoalProgress{.label = "Productividad hoy", .isProductivity = true, .targetScore = 0.8},
                  GoalProgress{.label = "Semana", .targetSeconds = hours(35)},
                  GoalProgress{.label = "Mes", .targetSeconds = hours(140)}};
    data.generated = "1 nov 2026 · 09:05";
    return data;
}

inline ReportData fullMonth() {
    auto data = emptyMonth();
    data.totalSeconds = hours(112.6);
    data.activeDays = 15;
    data.avgDailySeconds = hours(7.5);
    data.recordSeconds = hours(10.25);
    data.recordDay = "2026-11-12";
    data.scorePct = 0.835;
    data.topApps = {{"Visual Studio Code", hours(41.3)},
                    {"Firefox", hours(22.75)},
                    {"Figma", hours(13.2)},
                    {"Slack", hours(9.1)},
                    {"DaVinci Resolve", hours(6.05)},
                    {"Correo", hours(3.4)},
                    {"Spotify", hours(0.9)},
                    {"Terminal", Seconds(59)}};
    data.goals = {GoalProgress{"Hoy", hours(4.5), hours(6), 0.75},
                  GoalProgress{"Productividad hoy", {}, {}, 0.905 / 0.8, true, 0.905, 0.8},
                  GoalProgress{"Semana", hours(35), hours(35), 1.0},
                  GoalProgress{"Mes", hours(112.6), hours(140), 112.6 / 140}};
    data.starsMonth = 58;
    data.streak = 12;
    data.generated = "21 nov 2026 · 09:05";
    return data;
}

inline ReportData longNames() {
    auto data = fullMonth();
    data.periodTitle = "MES · Septiembre 2026";
    data.topApps = {{"Un programa con un nombre que no cabe en su columna de ninguna manera", hours(41.3)},
                    {"org.example.desktop.con.un.identificador.muy.largo", hours(20)},
                    {"Dos\nlíneas \t y blancos", hours(2)},
                    {"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW", hours(1)}};
    data.totalSeconds = hours(743.99);
    data.avgDailySeconds = hours(23.99);
    data.goals[2].targetSeconds = hours(1234.5);
    data.goals[3].currentSeconds = hours(743.99);
    data.starsMonth = 155;
    data.streak = 400;
    data.generated = "30 sep 2026 · 23:59";
    return data;
}

inline ReportData exceededGoals() {
    auto data = fullMonth();
    for (auto& goal : data.goals) {
        if (!goal.isProductivity) goal.currentSeconds = hours(3 * 24);
        goal.fraction = 3.7;
    }
    data.goals[1].currentScore = 1;
    data.goals[1].targetScore = 0.27;
    data.topApps = {{"Sin tiempo", Seconds(0)}, {"Menos aún", Seconds(0)}};
    data.scorePct = 1;
    return data;
}

inline std::vector<ReportCase> reportCases() {
    return {{"empty_month", emptyMonth()},
            {"full_month", fullMonth()},
            {"long_names", longNames()},
            {"exceeded_goals", exceededGoals()}};
}

}  // namespace tidewatch::test
