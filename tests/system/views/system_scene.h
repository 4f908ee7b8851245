#pragma once

#include "tests/system/views/system_world.h"
#include "ui/ui_scene.h"

namespace tidewatch {

/// The views of the machine's state, in any theme.
class SystemScene : public SystemViewsWorld, public UiScene {
public:
    /// Recreates the window with the tab "Sistema".
    void showSystem(QSize size = {1139, 1000});
    /// The tab "Disco".
    void showDisk(QSize size = {1139, 1000});
    /// The sidebar, 220 points wide.
    void showSidebar(int height = 1000);
    /// The compact speed test, in a narrow column.
    void showCompactSpeedTest();

private:
    void showView(const QString& view, QObject& presenter, QSize size);
};

}  // namespace tidewatch
