#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "app/program_world.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

/// Two projects, of which the first is active and a third is archived; between two seconds, so that no timer
/// draws the title meanwhile.
class TitleWorld : public ProgramWorld {
public:
    TitleWorld() {
        launch();
        auto& projects = program_->services.projects.store;
        const auto film = projects.addProject("Film").id;
        projects.addProject("Libro");
        projects.setArchived(ProjectStore::Archived::yes, projects.addProject("Viejo").id);
        projects.setActive(film);
        machine_.mainLoop.run();
        titlesBefore_ = surfaces_.statusItem().titlesSet();
    }

    void choose(const char* title) { ASSERT_TRUE(ProgramWorld::choose(title)) << title; }
    /// Chooses within the submenu of one project.
    void chooseFor(const char* project, const char* title) {
        for (const auto& row : menu()) {
            if (row.title != "Proyecto") continue;
            for (const auto& child : row.children) {
                if (child.title != project) continue;
                ASSERT_TRUE(chooseIn(child.children, title)) << title;
                machine_.mainLoop.run();
                return;
            }
        }
        FAIL() << "no project " << project;
    }
    void answer(const char* text) {
        surfaces_.answer(text);
        machine_.mainLoop.run();
    }
    void agree() {
        surfaces_.agree();
        machine_.mainLoop.run();
    }
    void click(StatusItem::Click click) { surfaces_.statusItem().click(click); }
    void breakTheLoginItem() { machine_.loginItem.setFailure(Error{"no"}); }
    void reopen() { program_->delegate.applicationShouldHandleReopen(); }

protected:
    [[nodiscard]] int titlesSince() { return surfaces_.statusItem().titlesSet() - titlesBefore_; }

private:
    int titlesBefore_ = 0;
};

/// A user action, and how often it redraws the title.
struct Deed {
    const char* name;
    std::function<void(TitleWorld&)> happens;
    int titles;

    friend void PrintTo(const Deed& deed, std::ostream* out) { *out << deed.name; }
};

const std::vector<Deed> deeds{
    {"SwitchIdle", [](TitleWorld& world) { world.choose("10 min"); }, 1},
    {"SwitchDayStart", [](TitleWorld& world) { world.choose("06:00"); }, 2},
    {"ToggleVisible", [](TitleWorld& world) { world.choose("Ocultar ventana"); }, 1},
    {"ToggleLoginItem", [](TitleWorld& world) { world.choose("Iniciar al arrancar"); }, 1},
    {"SwitchTheme", [](TitleWorld& world) { world.choose("Hacker"); }, 1},
    {"SwitchSize", [](TitleWorld& world) { world.choose("75%"); }, 1},
    {"SwitchToNoProject", [](TitleWorld& world) { world.choose("(ninguno)"); }, 1},
    {"SwitchProject", [](TitleWorld& world) { world.chooseFor("Libro", "Activar"); }, 1},
    {"SetProjectColor", [](TitleWorld& world) { world.chooseFor("Libro", "Rosa"); }, 1},
    {"ArchiveProject", [](TitleWorld& world) { world.chooseFor("Film", "Archivar"); }, 1},
    {"UnarchiveProject", [](TitleWorld& world) { world.choose("Viejo"); }, 1},
    {"RenameProject",
     [](TitleWorld& world) {
         world.chooseFor("Film", "Renombrar…");
         world.answer("Cine");
     },
     1},
    {"DeleteProject",
     [](TitleWorld& world) {
         world.chooseFor("Film", "Borrar…");
         world.agree();
     },
     1},
    // Added and then made active.
    {"NewProject",
     [](TitleWorld& world) {
         world.choose("Nuevo proyecto…");
         world.answer("Disco");
     },
     2},
    // These wait for the next second.
    {"AFailureToToggleTheLoginItem",
     [](TitleWorld& world) {
         world.breakTheLoginItem();
         world.choose("Iniciar al arrancar");
     },
     0},
    {"ANameOfBlanks",
     [](TitleWorld& world) {
         world.chooseFor("Film", "Renombrar…");
         world.answer("  ");
     },
     0},
    {"AskingForAName", [](TitleWorld& world) { world.choose("Nuevo proyecto…"); }, 0},
    {"AskingWhetherToDelete", [](TitleWorld& world) { world.chooseFor("Film", "Borrar…"); }, 0},
    {"ResetToday", [](TitleWorld& world) { world.choose("Reiniciar día"); }, 0},
    {"ShowStats", [](TitleWorld& world) { world.choose("Estadísticas…"); }, 0},
    {"RevealData", [](TitleWorld& world) { world.choose("Revelar archivo de datos"); }, 0},
    {"ExportDay", [](TitleWorld& world) { world.choose("Exportar día (CSV)…"); }, 0},
    {"ExportProject", [](TitleWorld& world) { world.chooseFor("Film", "Exportar CSV…"); }, 0},
    {"Quit", [](TitleWorld& world) { world.choose("Salir"); }, 0},
    {"OpeningTheMenu", [](TitleWorld& world) { world.click(StatusItem::Click::right); }, 0},
    {"OpeningTheStatistics", [](TitleWorld& world) { world.click(StatusItem::Click::left); }, 0},
    {"AReopen", [](TitleWorld& world) { world.reopen(); }, 0},
};

class TitleAfter : public TitleWorld, public testing::WithParamInterface<Deed> {};

TEST_P(TitleAfter, IsDrawnAsOftenAsSpecified) {
    GetParam().happens(*this);
    EXPECT_EQ(titlesSince(), GetParam().titles);
}

INSTANTIATE_TEST_SUITE_P(Every, TitleAfter, testing::ValuesIn(deeds),
                         [](const auto& deed) { return std::string(deed.param.name); });

class StatusTitleShown : public TitleWorld {
protected:
    [[nodiscard]] std::string title() { return surfaces_.statusItem().title().text(); }
    [[nodiscard]] StatusTitle::Mood mood() { return surfaces_.statusItem().title().mood; }

    /// Books to the day of the clock and lets a second pass in which the user is away.
    StatusTitle::Mood moodOf(int productive, int distracting) {
        machine_.inputActivity.set(1000);
        machine_.clock.advance(24h);
        auto& services = program_->services;
        const auto day = services.counting.days.today();
        for (int i = 0; i < productive; ++i)
            services.counting.apps.incrementApp(AppId("com.apple.dt.Xcode"), day);
        for (int i = 0; i < distracting; ++i)
            services.counting.apps.incrementApp(AppId("com.netflix.Netflix"), day);
        runFor(1s);
        return mood();
    }
};

TEST_F(StatusTitleShown, ProjectChangesAreHandedOnAndNotDrawnInside) {
    program_->services.projects.store.setActive(std::nullopt);
    EXPECT_EQ(title(), "— · Film");
    machine_.mainLoop.run();
    EXPECT_EQ(title(), "—");
}

TEST_F(StatusTitleShown, AChangeOfTheDaysStartShowsTheFigureOfTheOtherDayAtOnce) {
    auto& apps = program_->services.counting.apps;
    for (int i = 0; i < 100; ++i) apps.incrementApp(AppId("com.apple.dt.Xcode"), DayKey("2026-01-15"));
    for (int i = 0; i < 100; ++i) apps.incrementApp(AppId("com.netflix.Netflix"), DayKey("2026-01-16"));
    machine_.clock.setNow(std::chrono::sys_days(std::chrono::January / 16 / 2026) + 2h);
    choose("04:00");
    EXPECT_EQ(title(), "100% · Film");
    choose("Medianoche (00:00)");
    EXPECT_EQ(title(), "0% · Film");
}

TEST_F(StatusTitleShown, IsDrawnEverySecondWhetherTheUserIsThereOrNot) {
    runFor(3s);
    EXPECT_EQ(titlesSince(), 3);
    machine_.inputActivity.set(1000);
    runFor(3s);
    EXPECT_EQ(titlesSince(), 6);
}

TEST_F(StatusTitleShown, HasItsColourFromTheScoreOfTheDayWhateverItsSecondsAre) {
    using Mood = StatusTitle::Mood;
    for (const int times : {10, 11, 13, 100, 1234}) {
        SCOPED_TRACE(times);
        EXPECT_EQ(moodOf(3 * times, 7 * times), Mood::middling);
        EXPECT_EQ(moodOf(3 * times - 1, 7 * times + 1), Mood::low);
        EXPECT_EQ(moodOf(6 * times, 4 * times), Mood::good);
        EXPECT_EQ(moodOf(6 * times - 1, 4 * times + 1), Mood::middling);
    }
}

TEST_F(StatusTitleShown, HasNoColourWhileThereIsNoFigure) {
    EXPECT_EQ(moodOf(59, 0), StatusTitle::Mood::none);
    EXPECT_EQ(moodOf(0, 0), StatusTitle::Mood::none);
    EXPECT_EQ(moodOf(0, 60), StatusTitle::Mood::low);
}

}  // namespace
}  // namespace tidewatch
