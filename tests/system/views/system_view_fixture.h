#pragma once

#include "tests/system/views/system_scene.h"
#include "ui/view_test.h"

namespace tidewatch {

/// The views of the machine's state with a believable machine.
struct SystemViewTest : ViewTest<SystemScene> {
    SystemViewTest() {
        useBelievableMachine();
        useBelievableFiles();
        SystemViewsWorld::show();
        disk_.setVisible(true);
        machine_.mainLoop.run();
    }
};

}  // namespace tidewatch
