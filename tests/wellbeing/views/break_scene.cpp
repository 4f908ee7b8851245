#include "wellbeing/views/break_scene.h"

namespace tidewatch {
namespace {

constexpr auto window = R"(
import Tidewatch.Wellbeing

Item {
    id: window
    required property BreakPresenter presenter
    property int clicks: 0
    property int keys: 0
    property int shortcuts: 0

    anchors.fill: parent
    Keys.onPressed: ++keys

    Shortcut { sequence: "Ctrl+2"; onActivated: ++window.shortcuts }
    DashboardBackground { anchors.fill: parent }
    ScrollPane {
        objectName: "pane"
        anchors.fill: parent
        padding: 24
        spacing: 12
        Repeater {
            model: 40
            TextButton {
                required property int index
                objectName: "below" + index
                text: "Fila " + index
                onClicked: ++window.clicks
            }
        }
    }
    BreakBombView { objectName: "alert"; anchors.fill: parent; presenter: window.presenter }
}
)";

}  // namespace

void BreakWorld::sit(Seconds seconds, Seconds totalToday) {
    for (std::int64_t i = 0; i < seconds.count(); ++i) reminder_.tickActiveSecond(totalToday);
}

void BreakWorld::sitUntilAlert() {
    while (!reminder_.alertActive()) sit(Seconds(1));
}

void BreakWorld::sitUntilAlert(int hoursOfDay) {
    while (!reminder_.alertActive()) sit(Seconds(1), Seconds(hoursOfDay * 3600 + 60));
}

void BreakScene::showWindow(QSize size) {
    show(window, size, {{"presenter", QVariant::fromValue(&presenter_)}});
}

}  // namespace tidewatch
