#include <gmock/gmock.h>

#include <functional>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "app/desktop/statistics.h"
#include "app/program_world.h"
#include "tests/wellbeing/games/scripted_keys.h"

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;
using testing::ElementsAreArray;

const DayKey yesterday("2026-01-15");
const DayKey today("2026-01-16");

/// Five seconds were worked, with a project active, up to 23:59:59 of the 15th. Then the clock passes
/// midnight and no tick has seen it yet: the engine still counts for the 15th, the clock shows the 16th, and
/// both days hold recognisable totals.
class MidnightWorld : public ProgramWorld {
public:
    MidnightWorld() {
        machine_.preferences.setBoolean("gate.initialized", true);
        machine_.preferences.setBoolean("gate.ready", false);
        machine_.clock.setNow(sys_days(2026y / 1 / 15) + 23h + 59min + 54s + 500ms);
        machine_.files.put("/home/user/.tidewatch/today.json", R"({"2026-01-15":1000})");
        launch();
        services().projects.store.setActive(services().projects.store.addProject("Film").id);
        runFor(5s);
        machine_.clock.setNow(sys_days(2026y / 1 / 16) + 200ms);
        services().counting.days.set(Seconds(111), yesterday);
        services().counting.days.set(Seconds(222), today);
        writesBefore_ = machine_.files.writes().size();
    }

    [[nodiscard]] Services& services() { return program_->services; }
    [[nodiscard]] AppDelegate& delegate() { return program_->delegate; }
    using ProgramWorld::platform;
    void clickStatusItem() { surfaces_.statusItem().click(StatusItem::Click::left); }
    void clickPanel() {
        surfaces_.panel().gestures().mouseDown({1, 1});
        surfaces_.panel().gestures().mouseUp({1, 1});
        machine_.mainLoop.run();
    }
    void choose(const char* title) { ASSERT_TRUE(ProgramWorld::choose(title)) << title; }
    void pass(milliseconds time) { runFor(time); }
    void leave() { machine_.inputActivity.set(1000); }
    void showStatistics() { statistics_.showWindow(); }
    void countWritesFromHere() { writesBefore_ = machine_.files.writes().size(); }

protected:
    /// The files written since, in order, without their folder.
    [[nodiscard]] std::vector<std::string> written() const {
        std::vector<std::string> names;
        const auto writes = machine_.files.writes();
        for (std::size_t i = writesBefore_; i < writes.size(); ++i) {
            names.push_back(writes[i].substr(writes[i].rfind('/') + 1));
        }
        return names;
    }

    [[nodiscard]] std::int64_t total(const DayKey& day) {
        return services().counting.days.seconds(day).count();
    }

private:
    std::size_t writesBefore_ = 0;
};

const std::string days = "today.json";
const std::string apps = "apps.json";
const std::string hoursFile = "hours.json";
const std::string minutesFile = "minutes.json";
const std::string projectTime = "project_time.json";

/// An event on which something may be written.
struct Occasion {
    const char* name;
    std::function<void(MidnightWorld&)> happens;
    std::vector<std::string> files;
    std::int64_t yesterday = 111;  ///< its total afterwards, as it was unless it is set
    std::int64_t today = 222;
    bool gate = false;  ///< whether the charge of the next game is kept

    friend void PrintTo(const Occasion& occasion, std::ostream* out) { *out << occasion.name; }
};

const std::vector<std::string> allFiles{days, apps, hoursFile, minutesFile, projectTime};

const std::vector<Occasion> occasions{
    {.name = "TheTickThatFindsTheDayChanged",
     .happens =
         [](MidnightWorld& world) {
             world.leave();
             world.pass(1s);
         },
     .files = {days},
     .yesterday = 1005},
    {.name = "EveryThirtiethTick",
     .happens =
         [](MidnightWorld& world) {
             world.pass(24s);
             world.countWritesFromHere();
             world.leave();
             world.pass(1s);
         },
     .files = allFiles,
     .yesterday = 1005,
     .today = 246},
    {.name = "TheEnd",
     .happens = [](MidnightWorld& world) { world.delegate().applicationWillTerminate(); },
     .files = allFiles,
     .yesterday = 1005,
     .gate = true},
    {.name = "ResetToday",
     .happens = [](MidnightWorld& world) { world.choose("Reiniciar día"); },
     .files = {days},
     .yesterday = 0},
    {.name = "AClickOnTheStatusItemThatOpensTheStatistics",
     .happens = [](MidnightWorld& world) { world.clickStatusItem(); },
     .files = allFiles,
     .today = 1005},
    {.name = "AClickOnThePanelThatOpensTheStatistics",
     .happens = [](MidnightWorld& world) { world.clickPanel(); },
     .files = allFiles,
     .today = 1005},
    {.name = "AReopen",
     .happens = [](MidnightWorld& world) { world.delegate().applicationShouldHandleReopen(); },
     .files = {days, apps, hoursFile},
     .today = 1005},
    {.name = "ShowStats",
     .happens = [](MidnightWorld& world) { world.choose("Estadísticas…"); },
     .files = {days},
     .today = 1005},
    {.name = "RevealData",
     .happens = [](MidnightWorld& world) { world.choose("Revelar archivo de datos"); },
     .files = {days},
     .today = 1005},
    {.name = "TheExportOfTheDay",
     .happens = [](MidnightWorld& world) { world.choose("Exportar día (CSV)…"); },
     .files = {days, apps},
     .today = 1005},
    {.name = "TheExportOfAProject",
     .happens = [](MidnightWorld& world) { world.choose("Exportar CSV…"); },
     .files = {projectTime}},
    {.name = "TheReloadOfTheStatistics",
     .happens =
         [](MidnightWorld& world) {
             test::ScriptedKeys keys;
             Statistics statistics(world.platform(), world.services(), keys, {});
             auto& presenter = statistics.presenter();
             world.services().broadcaster.post(DashboardWillShow());
             presenter.disappear();
         },
     .files = {days, apps, hoursFile, minutesFile}},
    {.name = "TheRefreshOfEverySecond",
     .happens =
         [](MidnightWorld& world) {
             world.services().engine.stop();
             world.services().counting.days.set(Seconds(111), yesterday);
             world.countWritesFromHere();
             world.pass(3s);
         },
     .files = {},
     .today = 1005,
     .gate = true},
    // These write nothing.
    {.name = "AClickOnThePanelThatClosesTheStatistics",
     .happens =
         [](MidnightWorld& world) {
             world.showStatistics();
             world.clickPanel();
         },
     .files = {}},
    {.name = "AClickOnTheStatusItemThatOpensTheMenu",
     .happens =
         [](MidnightWorld& world) {
             world.showStatistics();
             world.clickStatusItem();
         },
     .files = {}},
    {.name = "AChangeOfIdle", .happens = [](MidnightWorld& world) { world.choose("1 min"); }, .files = {}},
    {.name = "AChangeOfTheme", .happens = [](MidnightWorld& world) { world.choose("Hacker"); }, .files = {}},
    {.name = "AChangeOfSize", .happens = [](MidnightWorld& world) { world.choose("75%"); }, .files = {}},
    {.name = "AChangeOfTheDaysStart",
     .happens = [](MidnightWorld& world) { world.choose("04:00"); },
     .files = {}},
    {.name = "HidingThePanel",
     .happens = [](MidnightWorld& world) { world.choose("Ocultar ventana"); },
     .files = {}},
    {.name = "AChangeOfProject",
     .happens = [](MidnightWorld& world) { world.choose("(ninguno)"); },
     .files = {"projects.json"}},
};

class FlushTable : public MidnightWorld, public testing::WithParamInterface<Occasion> {
protected:
    /// What the preferences hold of the charge; it is in memory alone until it is kept.
    [[nodiscard]] std::int64_t keptCharge() const { return machine_.preferences.integer("gate.workSeconds"); }
};

TEST_P(FlushTable, WritesItsFilesInOrderAndSetsTheDayThatItNames) {
    ASSERT_EQ(services().engine.todaySeconds(), Seconds(1005));
    ASSERT_EQ(services().wellbeing.gameGate.workSeconds(), Seconds(5));
    const auto& occasion = GetParam();
    occasion.happens(*this);
    EXPECT_THAT(written(), ElementsAreArray(occasion.files));
    EXPECT_EQ(total(yesterday), occasion.yesterday);
    EXPECT_EQ(total(today), occasion.today);
    EXPECT_EQ(keptCharge(), occasion.gate ? 5 : 0);
}

INSTANTIATE_TEST_SUITE_P(Every, FlushTable, testing::ValuesIn(occasions),
                         [](const auto& occasion) { return std::string(occasion.param.name); });

class FlushedValue : public MidnightWorld {};

TEST_F(FlushedValue, IsSetBeforeTheFileIsWritten) {
    clickStatusItem();
    EXPECT_EQ(file("today.json"), "{\n  \"2026-01-15\" : 111,\n  \"2026-01-16\" : 1005\n}");
}

TEST_F(FlushedValue, OfADayThatEndedIsItsOwnTotalUnderItsOwnKey) {
    delegate().applicationWillTerminate();
    EXPECT_EQ(file("today.json"), "{\n  \"2026-01-15\" : 1005,\n  \"2026-01-16\" : 222\n}");
}

TEST_F(FlushedValue, OfTheThirtiethTickIsSetAlthoughTheUserIsAway) {
    pass(24s);
    leave();
    services().counting.days.set(Seconds(777), today);
    pass(1s);
    EXPECT_EQ(file("today.json"), "{\n  \"2026-01-15\" : 1005,\n  \"2026-01-16\" : 246\n}");
}

TEST_F(FlushedValue, OfAResetIsZeroUnderTheEnginesKey) {
    choose("Reiniciar día");
    EXPECT_EQ(file("today.json"), "{\n  \"2026-01-15\" : 0,\n  \"2026-01-16\" : 222\n}");
}

class TheIdleProgram : public MidnightWorld {
public:
    TheIdleProgram() {
        leave();
        pass(1min);
        countWritesFromHere();
    }
};

TEST_F(TheIdleProgram, WritesNothingForAnHour) {
    pass(1h);
    EXPECT_THAT(written(), testing::IsEmpty());
}

/// All files of the record, none of them empty.
class TheRemovedFolder : public TheIdleProgram {
public:
    TheRemovedFolder() {
        machine_.applications.registerApplication(AppId("org.example.Draw"),
                                                  {.name = "Draw", .icon = "", .categories = {"Graphics"}});
        auto& classification = services().classification;
        classification.categories.setCategory(Category::design, AppId("org.example.Editor"));
        static_cast<void>(classification.categories.category(AppId("org.example.Draw")));
        auto goals = services().goals.store.settings();
        goals.dailyHours = 5;
        services().goals.store.setSettings(goals);
        services().goals.store.save();
        services().widgets.store.update(WidgetKind::goals, [](WidgetState& state) { state.x = 5; });
        pass(1s);
        for (const auto& name : allFiles) before_[name] = file(name);
        for (const auto& name : smallFiles_) before_[name] = file(name);
        countWritesFromHere();
        machine_.files.removeDirectory("/home/user/.tidewatch");
    }

protected:
    [[nodiscard]] std::vector<std::string> everyFile() const {
        auto files = allFiles;
        files.insert(files.end(), smallFiles_.begin(), smallFiles_.end());
        return files;
    }
    [[nodiscard]] std::map<std::string, std::string> onDisk() const {
        std::map<std::string, std::string> files;
        for (const auto& name : everyFile()) files[name] = file(name);
        return files;
    }

    const std::vector<std::string> smallFiles_{"projects.json", "categories.json", "registered.json",
                                               "goals.json", "widgets.json"};
    std::map<std::string, std::string> before_;
};

TEST_F(TheRemovedFolder, ComesBackWithEveryFileAtTheThirtiethTick) {
    pass(30s);
    EXPECT_THAT(written(), ElementsAreArray(everyFile()));
    EXPECT_EQ(onDisk(), before_);
}

TEST_F(TheRemovedFolder, ComesBackWithEveryFileAtTheEnd) {
    delegate().applicationWillTerminate();
    EXPECT_THAT(written(), ElementsAreArray(everyFile()));
    EXPECT_EQ(onDisk(), before_);
}

TEST_F(TheIdleProgram, BringsBackNoFileThatNeverWas) {
    machine_.files.removeDirectory("/home/user/.tidewatch");
    pass(30s);
    auto files = allFiles;
    files.push_back("projects.json");
    EXPECT_THAT(written(), ElementsAreArray(files));
}

TEST_F(TheIdleProgram, WritesWhatIsCountedOnceTheUserIsBack) {
    machine_.inputActivity.set(0);
    pass(30s);
    EXPECT_THAT(written(), ElementsAreArray(allFiles));
}

}  // namespace
}  // namespace tidewatch
