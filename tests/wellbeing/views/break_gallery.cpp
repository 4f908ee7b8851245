// The break alert, with another exercise in each theme.

#include <QtTest/QTest>

#include "ui/gallery.h"
#include "wellbeing/views/break_scene.h"

namespace tidewatch {
namespace {

constexpr QSize smallestWindow(820, 560);
constexpr QSize largeWindow(1100, 720);

}  // namespace

void paint(Gallery& gallery) {
    BreakScene scene;
    bool longDay = false;
    gallery.paintThemes(scene, [&](const QString& theme) {
        if (longDay) {
            scene.sitUntilAlert(11);
        } else {
            scene.sitUntilAlert();
        }
        scene.showWindow(longDay ? smallestWindow : largeWindow);
        QTest::qWait(300);
        gallery.save(scene.picture(), theme);
        scene.presenter_.dismiss();
        longDay = !longDay;
    });
}

}  // namespace tidewatch
