// Every tab of the statistics window at two sizes, with a record and at the first start.

#include <array>

#include "shell/views/stats_scene.h"
#include "ui/gallery.h"

namespace tidewatch {
namespace {

constexpr std::array sizes = {QSize(1360, 1000), QSize(820, 560)};

void paintTabs(Gallery& gallery, StatsScene& scene, const QString& record) {
    scene.appear();
    gallery.paintThemes(scene, [&](const QString& theme) {
        for (const auto& size : sizes) {
            for (int tab = 0; tab < scene.presenter_.tabs().size(); ++tab) {
                scene.presenter_.selectTab(tab);
                scene.show(size);
                gallery.save(scene.picture(), QString("%1-%2-%3%4")
                                                  .arg(theme)
                                                  .arg(size.width())
                                                  .arg(scene.presenter_.tabs()[tab], record));
            }
        }
    });
}

}  // namespace

void paint(Gallery& gallery) {
    StatsScene worked;
    worked.bookBelievableWork();
    paintTabs(gallery, worked, "");
    StatsScene empty;
    paintTabs(gallery, empty, "-empty");
}

}  // namespace tidewatch
