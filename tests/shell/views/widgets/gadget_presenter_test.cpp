#include <gtest/gtest.h>

#include <QSignalSpy>
#include <algorithm>
#include <string>
#include <vector>

#include "shell/views/widgets/gadgets_scene.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

struct GadgetPresenterTest : testing::Test, GadgetsWorld {
    template <class Presenter>
    [[nodiscard]] Presenter& shown(WidgetKind kind) {
        return dynamic_cast<Presenter&>(appear(kind));
    }
    [[nodiscard]] auto& productivity() {
        return shown<ProductivityGadgetPresenter>(WidgetKind::productivity);
    }
    [[nodiscard]] auto& system() { return shown<SystemGadgetPresenter>(WidgetKind::system); }
    [[nodiscard]] auto& streak() { return shown<StreakGadgetPresenter>(WidgetKind::streak); }
    [[nodiscard]] auto& goals() { return shown<GoalsGadgetPresenter>(WidgetKind::goals); }
    [[nodiscard]] auto& speed() { return shown<SpeedGadgetPresenter>(WidgetKind::speed); }
    [[nodiscard]] auto& project() { return shown<ProjectGadgetPresenter>(WidgetKind::project); }
    [[nodiscard]] auto& topApps() { return shown<TopAppsGadgetPresenter>(WidgetKind::topApps); }

    template <class Row>
    [[nodiscard]] static std::vector<Row> rowsOf(RowListModel* model) {
        return dynamic_cast<RowList<Row>&>(*model).rows();
    }
    [[nodiscard]] std::vector<GadgetBar> tiers() { return rowsOf<GadgetBar>(productivity().bars()); }
    [[nodiscard]] std::vector<GadgetApp> apps() { return rowsOf<GadgetApp>(topApps().apps()); }

    /// The colour of the score of this much productive and distracting time.
    [[nodiscard]] QString colorOfScore(std::int64_t productive, std::int64_t distracting) {
        bookTiers(productive, distracting);
        return productivity().scoreColor().name();
    }

    void setDailyGoal(double hours) {
        auto settings = services_.goals.store.settings();
        settings.dailyHours = hours;
        services_.goals.store.setSettings(settings);
    }

    static constexpr auto green = "#7bd88f";
    static constexpr auto amber = "#e8c458";
    static constexpr auto red = "#d15757";
};

// Productivity.

TEST_F(GadgetPresenterTest, WithNoWorkTodayTheScoreIsADashInTheDistractingColour) {
    EXPECT_EQ(productivity().score(), "—");
    EXPECT_EQ(productivity().scoreColor().name(), red);
    for (const auto& tier : tiers()) {
        EXPECT_EQ(tier.value, "0s") << qPrintable(tier.id);
        EXPECT_EQ(tier.fraction, 0) << qPrintable(tier.id);
    }
}

TEST_F(GadgetPresenterTest, AScoreBelowThreeTenthsIsRed) {
    EXPECT_EQ(colorOfScore(299, 701), red);
}

TEST_F(GadgetPresenterTest, AScoreOfExactlyThreeTenthsIsAmber) {
    EXPECT_EQ(colorOfScore(300, 700), amber);
    EXPECT_EQ(productivity().score(), "30%");
}

TEST_F(GadgetPresenterTest, AScoreBelowSixTenthsIsAmber) {
    EXPECT_EQ(colorOfScore(599, 401), amber);
}

TEST_F(GadgetPresenterTest, AScoreOfExactlySixTenthsIsGreen) {
    EXPECT_EQ(colorOfScore(600, 400), green);
    EXPECT_EQ(productivity().score(), "60%");
}

TEST_F(GadgetPresenterTest, ABarIsAsLongAsItsTiersShareOfTheTimeThatHasATier) {
    bookTiers(600, 100, 300);
    book("org.example.Unknown", today(), 12, 0, 5000);
    const auto bars = tiers();
    ASSERT_EQ(bars.size(), 3U);
    EXPECT_EQ(bars[0].id, "Productivo");
    EXPECT_DOUBLE_EQ(bars[0].fraction, 0.6);
    EXPECT_EQ(bars[0].value, "10m");
    EXPECT_EQ(bars[0].color.name(), green);
    EXPECT_EQ(bars[1].id, "Neutral");
    EXPECT_DOUBLE_EQ(bars[1].fraction, 0.3);
    EXPECT_EQ(bars[2].id, "Distrae");
    EXPECT_DOUBLE_EQ(bars[2].fraction, 0.1);
    EXPECT_EQ(bars[2].color.name(), red);
}

// The machine.

TEST_F(GadgetPresenterTest, OnAWirelessNetworkItsRowHasTheWirelessSymbol) {
    useMachine();
    EXPECT_EQ(system().networkSymbol(), "wifi");
    EXPECT_EQ(system().networkAccessibleText(), "Wi-Fi: descarga 4.8 MB/s, subida 391 KB/s");
}

TEST_F(GadgetPresenterTest, OnAnyOtherNetworkItsRowHasThePlainSymbol) {
    useMachine({.link = wired});
    EXPECT_EQ(system().networkSymbol(), "network");
    EXPECT_EQ(system().network(), "Red");
}

TEST_F(GadgetPresenterTest, TheBarsAreLoadMemoryAndTheLargestVolume) {
    useMachine();
    const auto bars = rowsOf<GadgetBar>(system().bars());
    ASSERT_EQ(bars.size(), 3U);
    EXPECT_EQ(bars[0].accessibleText(), "CPU: 37%");
    EXPECT_EQ(bars[1].accessibleText(), "RAM: 9.0 GB");
    EXPECT_DOUBLE_EQ(bars[1].fraction, 9.0 / 16);
    EXPECT_EQ(bars[2].accessibleText(), "Disco: 118 GB libre");
    EXPECT_DOUBLE_EQ(bars[2].fraction, 0.75);
}

TEST_F(GadgetPresenterTest, WithoutVolumesThereIsNoRowForThem) {
    useMachine({.volume = 0});
    EXPECT_EQ(system().bars()->rowCount(), 2);
}

// Streak and insights.

TEST_F(GadgetPresenterTest, WithoutWorkThereIsNoPeakHourAndNoLongestSession) {
    EXPECT_EQ(streak().streak(), "0d");
    EXPECT_EQ(streak().peakHour(), "—");
    EXPECT_EQ(streak().longest(), "—");
    EXPECT_EQ(streak().total(), "0s");
}

TEST_F(GadgetPresenterTest, ThePeakHourTheLongestSessionAndTheTotalAreThoseOfTheWeek) {
    book("code", today(), 9, 0, 600);
    book("code", today(), 9, 10, 600);
    book("firefox", today(), 15, 30, 700);
    EXPECT_EQ(streak().peakHour(), "9 am");
    EXPECT_EQ(streak().longest(), "20m");
    EXPECT_EQ(streak().total(), "31m");
}

// Goals.

TEST_F(GadgetPresenterTest, TheGoalOfTheDayIsShownWithItsTarget) {
    setDailyGoal(8);
    book("code", today(), 9, 0, 2 * 3600);
    EXPECT_EQ(goals().goalAccessibleText(), "Meta del día: 2h 0m / 8h 0m");
    EXPECT_DOUBLE_EQ(goals().goalFraction(), 0.25);
}

TEST_F(GadgetPresenterTest, AnExceededGoalFillsItsBar) {
    setDailyGoal(1);
    book("code", today(), 9, 0, 2 * 3600);
    EXPECT_EQ(goals().goalFraction(), 1);
}

TEST_F(GadgetPresenterTest, AGoalOfZeroHasAnEmptyBar) {
    setDailyGoal(0);
    book("code", today(), 9, 0, 3600);
    EXPECT_EQ(goals().goal(), "1h 0m / 0s");
    EXPECT_EQ(goals().goalFraction(), 0);
}

TEST_F(GadgetPresenterTest, AsManyOfFiveStarsAreFilledAsWereEarnedToday) {
    EXPECT_EQ(goals().stars(), QStringList(5, "star"));
    EXPECT_EQ(goals().starsAccessibleText(), "0 de 5 estrellas");
    setDailyGoal(1);
    book("code", today(), 9, 0, 3600);
    hub().changed.emit();
    EXPECT_EQ(goals().stars(), QStringList(5, "star.fill"));
    EXPECT_EQ(goals().monthAccessibleText(), "5 estrellas este mes");
    EXPECT_EQ(goals().streak(), "1d");
}

// The speed test.

TEST_F(GadgetPresenterTest, AtRestTheSpeedTestAsksToBeStarted) {
    EXPECT_EQ(speed().status(), "toca Probar");
    EXPECT_EQ(speed().buttonText(), "Probar");
    EXPECT_EQ(speed().value(), 0);
    EXPECT_EQ(speed().scaleMax(), 50);
}

TEST_F(GadgetPresenterTest, ARunningSpeedTestShowsItsProgressAndTheSpeedOfTheMoment) {
    startSpeedTest();
    EXPECT_EQ(speed().status(), "50%");
    EXPECT_EQ(speed().buttonText(), "Detener");
    EXPECT_EQ(speed().value(), hub().speed().currentMbps());
}

TEST_F(GadgetPresenterTest, ACompletedSpeedTestShowsItsPeakAndTheLatency) {
    completeSpeedTest();
    EXPECT_EQ(speed().status(), "ping 14 ms");
    EXPECT_EQ(speed().buttonText(), "Probar");
    EXPECT_GT(hub().speed().peakMbps(), hub().speed().avgMbps());
    EXPECT_EQ(speed().value(), hub().speed().peakMbps());
}

TEST_F(GadgetPresenterTest, AFailedSpeedTestNamesTheNetwork) {
    failSpeedTest();
    EXPECT_EQ(speed().status(), "error de red");
    EXPECT_EQ(speed().buttonText(), "Probar");
}

TEST_F(GadgetPresenterTest, TheButtonStartsASpeedTestAndCancelsIt) {
    speed().press();
    EXPECT_TRUE(speed().isRunning());
    EXPECT_EQ(hub().speed().phase(), SpeedTester::Phase::downloading);
    speed().press();
    machine_.mainLoop.run();
    EXPECT_FALSE(speed().isRunning());
}

// The project.

TEST_F(GadgetPresenterTest, WithoutAnActiveProjectItSaysWhereToChooseOne) {
    EXPECT_FALSE(project().hasProject());
    EXPECT_EQ(project().noProject(), "Sin proyecto activo");
    EXPECT_EQ(project().noProjectHelp(), "Elígelo en el menú de la barra");
    EXPECT_EQ(project().accessibleText(), "Sin proyecto activo");
}

TEST_F(GadgetPresenterTest, TheActiveProjectIsShownWithItsColourAndItsTimeToday) {
    activateProject("Sitio web", "#6B9ED4");
    bookProject(*services_.projects.store.activeProjectId(), "code", today(), 5400);
    EXPECT_EQ(project().accessibleText(), "Sitio web: 1h 30m hoy");
    EXPECT_EQ(project().color().name(), "#6b9ed4");
}

TEST_F(GadgetPresenterTest, AProjectsNameStaysOnOneLine) {
    activateProject("Sitio\nweb", "#6B9ED4");
    EXPECT_EQ(project().name(), "Sitio web");
}

// Applications.

TEST_F(GadgetPresenterTest, WithoutApplicationsItSaysSo) {
    EXPECT_FALSE(topApps().hasApps());
    EXPECT_EQ(topApps().noApps(), "Sin actividad aún");
}

TEST_F(GadgetPresenterTest, OneApplicationHasAFullBar) {
    book("code", today(), 9, 0, 60);
    ASSERT_EQ(apps().size(), 1U);
    EXPECT_EQ(apps()[0].fraction, 1);
    EXPECT_EQ(apps()[0].app.accessibleText, "Visual Studio Code, 1m");
}

TEST_F(GadgetPresenterTest, OfFiveApplicationsFourAreShown) {
    int seconds = 500;
    for (const char* app : {"code", "firefox", "supertuxkart", "org.example.Unknown", "thunderbird"})
        book(app, today(), 9, 0, seconds -= 50);
    const auto rows = apps();
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_DOUBLE_EQ(rows[1].fraction, 400.0 / 450);
    EXPECT_EQ(rows[2].app.color.name(), red);
    EXPECT_EQ(rows[3].id, "org.example.Unknown");
    EXPECT_NEAR(rows[3].app.color.alphaF(), 0.5, 0.01) << "fainter than in lists";
}

// Following.

TEST_F(GadgetPresenterTest, WhatIsNotShownDoesNotFollow) {
    auto& hidden = dynamic_cast<TopAppsGadgetPresenter&>(gadget(WidgetKind::topApps));
    hub().start();
    book("code", today(), 9, 0, 60);
    machine_.mainLoop.runFor(2s);
    EXPECT_FALSE(hidden.hasApps());
    hidden.setVisible(true);
    EXPECT_TRUE(hidden.hasApps());
}

TEST_F(GadgetPresenterTest, AMinuteWithoutAChangeNotifiesOfNothing) {
    useBelievableDay();
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    const auto spyOn = [&spies](const QObject& object) {
        const auto* meta = object.metaObject();
        for (int method = QObject::staticMetaObject.methodCount(); method < meta->methodCount(); ++method) {
            if (meta->method(method).methodType() == QMetaMethod::Signal)
                spies.push_back(std::make_unique<QSignalSpy>(&object, meta->method(method)));
        }
    };
    for (const auto kind : allWidgetKinds()) spyOn(appear(kind));
    for (auto* rows : {topApps().apps(), productivity().bars()}) spyOn(*rows);
    hub().start();
    machine_.mainLoop.runFor(60s);
    EXPECT_EQ(hub().tick(), 60);
    EXPECT_TRUE(std::all_of(spies.begin(), spies.end(), [](const auto& spy) { return spy->isEmpty(); }));
    book("code", today(), 16, 30, 60);
    machine_.mainLoop.runFor(1s);
    EXPECT_FALSE(std::all_of(spies.begin(), spies.end(), [](const auto& spy) { return spy->isEmpty(); }));
}

TEST_F(GadgetPresenterTest, TheArcadesSessionEndsWhenItsWidgetGoes) {
    auto& arcade = shown<ArcadeGadgetPresenter>(WidgetKind::arcade);
    arcade.games()->play();
    EXPECT_EQ(arcade.games()->face(), GamesPresenter::Playing);
    arcade.setVisible(false);
    EXPECT_FALSE(services_.wellbeing.gameGate.playingNow());
}

}  // namespace
}  // namespace tidewatch
