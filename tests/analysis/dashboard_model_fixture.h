#pragma once

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <vector>

#include "analysis/dashboard_fixture.h"

namespace tidewatch {

inline constexpr auto editor = "com.apple.dt.Xcode";       // development, productive
inline constexpr auto player = "com.netflix.Netflix";      // entertainment, distracting
inline constexpr auto music = "com.spotify.client";        // music, neutral
inline constexpr auto unknown = "org.example.Unheard-of";  // uncategorized

class DashboardModelTest : public testing::Test {
protected:
    void book(const char* app, const char* day, int seconds) {
        for (int i = 0; i < seconds; ++i) fixture_.apps.incrementApp(AppId(app), DayKey(day));
    }
    void bookProject(const Project& project, const char* app, const char* day, int seconds) {
        world_.putAppInFront(app);
        for (int i = 0; i < seconds; ++i) fixture_.projectTime.incrementCurrentApp(DayKey(day), project.id);
    }
    void registerApplication(const char* app, const char* name) {
        world_.applications.registerApplication(AppId(app), {name, "icon-of-it", {}});
    }

    [[nodiscard]] std::vector<std::string> rowsOfProjects() const {
        std::vector<std::string> rows;
        for (const auto& row : model_.projectRows()) {
            rows.push_back(
                fmt::format("{} {}", row.project ? row.project->name : row.id, row.seconds.count()));
        }
        return rows;
    }
    [[nodiscard]] static std::vector<std::string> namesOf(const std::vector<AppEntry>& apps) {
        std::vector<std::string> names;
        for (const auto& app : apps) names.push_back(app.name);
        return names;
    }
    [[nodiscard]] std::vector<std::string> found(std::string_view search) {
        model_.setSearchText(search);
        return namesOf(model_.filteredApps());
    }
    [[nodiscard]] double meanAfterReload() {
        model_.reload();
        return model_.avg7Score();
    }

    test::FakeWorld world_;  // Thursday, 2026-01-15, 09:00
    test::DashboardFixture fixture_{world_};
    DashboardModel model_{fixture_.sources()};
};

}  // namespace tidewatch
