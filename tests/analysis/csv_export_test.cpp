#include "analysis/csv_export.h"

#include <gtest/gtest.h>

#include <string>

#include "analysis/dashboard_fixture.h"

namespace tidewatch {
namespace {

class CsvExportTest : public testing::Test {
protected:
    void registerApplication(const char* app, const char* name) {
        world_.applications.registerApplication(AppId(app), {name, "", {}});
    }
    void putApps(const std::string& json) { world_.files.put(world_.appsJson, json); }
    void putProjectTime(const std::string& json) { world_.files.put(world_.projectTimeJson, json); }

    // Reads the files that were put before.
    [[nodiscard]] std::string day(const char* key) {
        const test::DashboardFixture fixture(world_);
        return exportOf(fixture).day(DayKey(key));
    }
    [[nodiscard]] std::string project() {
        const test::DashboardFixture fixture(world_);
        return exportOf(fixture).project(project_);
    }
    [[nodiscard]] static CsvExport exportOf(const test::DashboardFixture& fixture) {
        return {fixture.apps, fixture.projectTime, fixture.categories, fixture.appInfo};
    }

    test::FakeWorld world_;
    const Project project_{*Uuid::parse("0F8FAD5B-D9CB-469F-A165-70867728950E"), "Casa", "#34D399"};
};

TEST_F(CsvExportTest, ADayIsALineForEachApplicationMostSecondsFirst) {
    registerApplication("com.apple.dt.Xcode", "Xcode");
    registerApplication("com.netflix.Netflix", "Netflix");
    registerApplication("com.spotify.client", "Spotify");
    putApps(R"({"2026-01-14":{"com.netflix.Netflix":900},
                "2026-01-15":{"com.spotify.client":59,"com.apple.dt.Xcode":7384,"com.netflix.Netflix":60,
                              "org.example.raro":1}})");
    EXPECT_EQ(day("2026-01-15"),
              "bundle_id,app_name,category,tier,seconds,hms,percent\n"
              "com.apple.dt.Xcode,Xcode,Desarrollo,productivo,7384,02:03:04,98.40\n"
              "com.netflix.Netflix,Netflix,Entretenimiento,distrayendo,60,00:01:00,0.80\n"
              "com.spotify.client,Spotify,Música,neutral,59,00:00:59,0.79\n"
              "org.example.raro,org.example.raro,Sin categorizar,sincategorizar,1,00:00:01,0.01\n");
}

TEST_F(CsvExportTest, ANameWithACommaAndAQuoteIsWrappedWithItsQuotesDoubled) {
    registerApplication("a", R"(Uno, "dos")");
    registerApplication("b", "Dos\nlíneas");
    registerApplication("c,d", "Retorno\rsolo; 'así'");
    putApps(R"({"2026-01-15":{"a":3,"b":2,"c,d":1}})");
    EXPECT_EQ(day("2026-01-15"),
              "bundle_id,app_name,category,tier,seconds,hms,percent\n"
              "a,\"Uno, \"\"dos\"\"\",Sin categorizar,sincategorizar,3,00:00:03,50.00\n"
              "b,\"Dos\nlíneas\",Sin categorizar,sincategorizar,2,00:00:02,33.33\n"
              "\"c,d\",Retorno\rsolo; 'así',Sin categorizar,sincategorizar,1,00:00:01,16.67\n");
}

TEST_F(CsvExportTest, ADayWithoutApplicationsIsTheHeaderAlone) {
    EXPECT_EQ(day("2026-01-15"), "bundle_id,app_name,category,tier,seconds,hms,percent\n");
}

TEST_F(CsvExportTest, ApplicationsWithoutASecondHaveNoShare) {
    putApps(R"({"2026-01-15":{"xterm":0}})");
    EXPECT_EQ(day("2026-01-15"),
              "bundle_id,app_name,category,tier,seconds,hms,percent\n"
              "xterm,xterm,Sin categorizar,sincategorizar,0,00:00:00,0.00\n");
}

TEST_F(CsvExportTest, AProjectIsALineForEachDayAndApplicationAndATotal) {
    registerApplication("com.apple.dt.Xcode", "Xcode");
    putProjectTime(R"({"2026-01-15":{"0F8FAD5B-D9CB-469F-A165-70867728950E":{"xterm":60}},
                       "2026-01-02":{"0F8FAD5B-D9CB-469F-A165-70867728950E":{"xterm":1,"com.apple.dt.Xcode":360000},
                                     "7C9E6679-7425-40DE-944B-E07FC1F90AE7":{"xterm":500}},
                       "2026-01-03":{"7C9E6679-7425-40DE-944B-E07FC1F90AE7":{"xterm":500}}})");
    EXPECT_EQ(project(),
              "date,bundle_id,app_name,category,tier,seconds,hms\n"
              "2026-01-02,com.apple.dt.Xcode,Xcode,Desarrollo,productivo,360000,100:00:00\n"
              "2026-01-02,xterm,xterm,Sin categorizar,sincategorizar,1,00:00:01\n"
              "2026-01-15,xterm,xterm,Sin categorizar,sincategorizar,60,00:01:00\n"
              "\n"
              "# total,,,,,360061,100:01:01\n");
}

TEST_F(CsvExportTest, AProjectWithoutTimeIsTheHeaderAnEmptyLineAndATotalOfZero) {
    EXPECT_EQ(project(), "date,bundle_id,app_name,category,tier,seconds,hms\n\n# total,,,,,0,00:00:00\n");
}

TEST_F(CsvExportTest, FilesAreNamedAfterTheDayAndTheProject) {
    EXPECT_EQ(CsvExport::fileName(DayKey("2026-11-21")), "tidewatch-2026-11-21.csv");
    auto project = project_;
    project.name = "A/B";
    EXPECT_EQ(CsvExport::fileName(project), "tidewatch-A-B.csv");
    project.name = "/Año: 1\\2/";
    EXPECT_EQ(CsvExport::fileName(project), "tidewatch--Año: 1\\2-.csv");
}

TEST_F(CsvExportTest, AnotherTierChangesPastDaysInTheProjectsFile) {
    putProjectTime(R"({"2024-02-29":{"0F8FAD5B-D9CB-469F-A165-70867728950E":{"com.spotify.client":5}}})");
    test::DashboardFixture fixture(world_);
    const auto exporter = exportOf(fixture);
    constexpr auto neutral = "2024-02-29,com.spotify.client,com.spotify.client,Música,neutral,5,00:00:05\n";
    constexpr auto productive =
        "2024-02-29,com.spotify.client,com.spotify.client,Música,productivo,5,00:00:05\n";
    EXPECT_NE(exporter.project(project_).find(neutral), std::string::npos);
    fixture.categories.setTier(Tier::productive, Category::music);
    EXPECT_EQ(exporter.project(project_).find(neutral), std::string::npos);
    EXPECT_NE(exporter.project(project_).find(productive), std::string::npos);
}

}  // namespace
}  // namespace tidewatch
