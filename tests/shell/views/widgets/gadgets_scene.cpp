#include "shell/views/widgets/gadgets_scene.h"

#include <chrono>

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

constexpr std::int64_t halfOfTheTest = SpeedTester::target / 2;

/// The first is a column for the tallest one.
constexpr auto all = R"(
import Tidewatch.Shell

Item {
    id: desktop
    required property var presenters
    required property real scaling
    anchors.fill: parent
    %1
    Row {
        padding: 24
        spacing: 20
        Repeater {
            model: desktop.presenters
            Column {
                id: column
                required property var modelData
                spacing: 20
                Repeater {
                    model: column.modelData
                    WidgetContainer {
                        required property GadgetPresenter modelData
                        objectName: modelData.accessibleName
                        presenter: modelData
                        width: presenter.panelWidth * desktop.scaling
                        height: presenter.panelHeight * desktop.scaling
                    }
                }
            }
        }
    }
}
)";

constexpr auto one = R"(
import Tidewatch.Shell

Item {
    id: window
    required property GadgetPresenter presenter
    anchors.fill: parent
    WidgetContainer { objectName: "container"; anchors.fill: parent; presenter: window.presenter }
}
)";

}  // namespace

void GadgetsWorld::bookTiers(std::int64_t productive, std::int64_t distracting, std::int64_t neutral) {
    book("code", today(), 9, 0, productive);
    book("supertuxkart", today(), 10, 0, distracting);
    book("org.gnome.Nautilus", today(), 11, 0, neutral);
}

void GadgetsWorld::activateProject(const char* name, const char* colorHex) {
    auto& projects = services_.projects.store;
    const auto id = projects.addProject(name).id;
    projects.setColor(colorHex, id);
    projects.setActive(id);
}

void GadgetsWorld::useBelievableDay() {
    bookBelievableWork();
    auto& projects = services_.projects.store;
    projects.setActive(projects.activeProjects().front().id);
}

void GadgetsWorld::useLongestTexts() {
    constexpr std::int64_t day = 23 * 3600 + 59 * 60;
    constexpr Seconds longest(1234 * 3600 + 59 * 60);
    for (const char* app : {"code", "supertuxkart", "org.gnome.Nautilus", "org.gimp.GIMP"}) {
        for (std::int64_t second = 0; second < day; ++second)
            services_.counting.apps.incrementApp(AppId(app), today());
    }
    services_.counting.days.set(longest, today());
    activateProject("Libro de cocina con un nombre bastante largo para una tarjeta", "#E8C458");
    bookProject(*services_.projects.store.activeProjectId(), "code", today(), day);
    useMachine({.link = wired,
                .volume = 1023 * gigabyte,
                .traffic = {.received = 2 * 1023 * kilobyte, .sent = 2 * 1023 * kilobyte}});
}

void GadgetsWorld::useMachine(const Machine& machine) {
    machine_.counters.link = machine.link;
    machine_.counters.cpu = platform::CpuTicks();
    machine_.counters.traffic = platform::InterfaceBytes{.received = 1000, .sent = 1000};
    machine_.counters.memoryReading = {
        .total = 16 * gigabyte,
        .usage = platform::MemoryUsage{.free = 2 * gigabyte,
                                       .active = 7 * gigabyte + gigabyte / 2,
                                       .wired = gigabyte,
                                       .compressed = gigabyte / 2},
    };
    hub().monitor().start();
    if (machine.volume > 0) {
        machine_.volumes.finish(std::vector<platform::MountedVolume>{{.path = "/",
                                                                      .name = "Sistema",
                                                                      .totalBytes = 4 * machine.volume,
                                                                      .freeBytes = machine.volume,
                                                                      .isInternal = true}});
    }
    machine_.counters.cpu = platform::CpuTicks{.user = 240, .system = 130, .idle = 630};
    machine_.counters.traffic->received += machine.traffic.received;
    machine_.counters.traffic->sent += machine.traffic.sent;
    machine_.mainLoop.runFor(SystemMonitor::defaultInterval);
}

void GadgetsWorld::startSpeedTest() {
    if (!machine_.counters.traffic) machine_.counters.traffic = platform::InterfaceBytes();
    hub().speed().startTest();
    machine_.clock.advance(14ms);
    machine_.http.end();
    machine_.http.send(0);
    machine_.counters.traffic->received += halfOfTheTest;
    machine_.mainLoop.runFor(4s);
    machine_.http.send(halfOfTheTest);
}

void GadgetsWorld::failSpeedTest() {
    startSpeedTest();
    machine_.http.end(platform::HttpFailure{false, "sin conexión"});
}

void GadgetsWorld::completeSpeedTest() {
    startSpeedTest();
    machine_.http.send(halfOfTheTest);
    machine_.http.end();
}

GadgetPresenter& GadgetsWorld::appear(WidgetKind kind) {
    gadget(kind).setVisible(true);
    return gadget(kind);
}

GadgetsScene::~GadgetsScene() {
    // The views before their presenters.
    view_.reset();
}

void GadgetsScene::showWidget(WidgetKind kind, double scale) {
    auto& presenter = appear(kind);
    UiScene::show(one, QSizeF(presenter.panelWidth() * scale, presenter.panelHeight() * scale).toSize(),
                  {{"presenter", QVariant::fromValue(&presenter)}});
}

void GadgetsScene::showAll(const QString& wallpaper, double scale) {
    const std::array columns{
        std::array{WidgetKind::productivity, WidgetKind::system},
        std::array{WidgetKind::streak, WidgetKind::goals},
        std::array{WidgetKind::speed, WidgetKind::project},
        std::array{WidgetKind::topApps, WidgetKind::topApps},
        std::array{WidgetKind::arcade, WidgetKind::arcade},
    };
    QVariantList presenters;
    for (const auto& [upper, lower] : columns) {
        QVariantList column{QVariant::fromValue(&appear(upper))};
        if (lower != upper) column.append(QVariant::fromValue(&appear(lower)));
        presenters.append(QVariant::fromValue(column));
    }
    const QSizeF size(5 * 214 + 12 + 6 * 24, 374 + 48);
    UiScene::show(QString(all).arg(wallpaper), QSizeF(size * scale).toSize(),
                  {{"presenters", presenters}, {"scaling", scale}});
}

}  // namespace tidewatch
