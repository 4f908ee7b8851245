#include "tests/system/views/system_scene.h"

namespace tidewatch {

void SystemScene::showView(const QString& view, QObject& presenter, QSize size) {
    const auto source = R"(
import Tidewatch.System

Item {
    id: window
    required property QtObject presenter

    anchors.fill: parent

    DashboardBackground { anchors.fill: parent }
    )" + view + "\n}\n";
    UiScene::show(source, size, {{"presenter", QVariant::fromValue(&presenter)}});
}

void SystemScene::showSystem(QSize size) {
    showView(R"(SystemTab { anchors.fill: parent; title: "Sistema"; presenter: window.presenter })", tab_,
             size);
}

void SystemScene::showDisk(QSize size) {
    showView(R"(DiskTab { anchors.fill: parent; title: "Disco"; presenter: window.presenter })", disk_, size);
}

void SystemScene::showSidebar(int height) {
    showView(
        R"(ExpandableSysSidebar { anchors.fill: parent; title: "Sistema"; presenter: window.presenter })",
        sidebar_, {220, height});
}

void SystemScene::showCompactSpeedTest() {
    showView(R"(SpeedTestView { x: 8; y: 8; width: 204; compact: true; presenter: window.presenter })",
             *tab_.speedTest(), {220, 300});
}

}  // namespace tidewatch
