// The tabs "Sistema" and "Disco" and the sidebar's panels.

#include <array>

#include "tests/system/views/system_scene.h"
#include "ui/gallery.h"

namespace tidewatch {
namespace {

void appear(SystemScene& scene) {
    scene.SystemViewsWorld::show();
    scene.disk_.setVisible(true);
    scene.machine_.mainLoop.run();
}

void startTest(SystemScene& scene) {
    scene.useBelievableMachine();
    appear(scene);
    scene.startDownload();
}

const std::vector<GalleryState<SystemScene>> states{
    {"unknown", appear},
    {"latency", startTest},
    {"download",
     [](SystemScene& scene) {
         startTest(scene);
         scene.download(0.4, std::chrono::seconds(3));
     }},
    {"failed",
     [](SystemScene& scene) {
         startTest(scene);
         scene.machine_.http.end(platform::HttpFailure{false, "Connection timed out"});
     }},
    {"used",
     [](SystemScene& scene) {
         scene.useBelievableMachine();
         scene.useBelievableFiles();
         scene.overview_.analyzer.scan();
         scene.machine_.mainLoop.run();
         scene.measureSpeed(std::chrono::seconds(8));
         appear(scene);
     }},
};

struct Painter {
    Gallery& gallery;
    SystemScene& scene;
    QString suffix;

    void save(const QString& name) const { gallery.save(scene.picture(), name + "-" + suffix); }

    void paintTabs() const {
        for (const int width : {820, 1139}) {
            scene.showSystem({width, 1000});
            save(QString("system-%1").arg(width));
            scene.showDisk({width, 1000});
            save(QString("disk-%1").arg(width));
        }
    }

    void paintSidebar() const {
        constexpr std::array panels{"overview", "disk", "memory", "cpu", "network", "devices"};
        scene.showSidebar();
        for (std::size_t panel = 0; panel < panels.size(); ++panel) {
            scene.sidebar_.select(static_cast<SysPanel>(panel));
            save(QString("sidebar-") + panels.at(panel));
        }
        scene.sidebar_.back();
        scene.showCompactSpeedTest();
        save("compact");
    }
};

}  // namespace

void paint(Gallery& gallery) {
    gallery.paintStates(states, [&](SystemScene& scene, const QString& state, const QString& theme) {
        const Painter painter{gallery, scene, theme + "-" + state};
        painter.paintTabs();
        painter.paintSidebar();
    });
}

}  // namespace tidewatch
