// The clock at every size, active, idle and opaque, and the dashboards' backgrounds.

#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QQuickPaintedItem>

#include "core/size_option.h"
#include "shell/views/clock_scene.h"
#include "ui/backgrounds/decorations.h"
#include "ui/backgrounds/liquid_background.h"
#include "ui/gallery.h"
#include "ui/style/qt_color.h"

namespace tidewatch {
namespace {

constexpr int margin = 12;
constexpr QSize dashboardSize(1360, 900);

/// Resembles a desktop wallpaper, to judge translucency and contrast.
class Wallpaper : public QQuickPaintedItem {
public:
    using QQuickPaintedItem::QQuickPaintedItem;
    void paint(QPainter* painter) override {
        QLinearGradient sky(0, 0, width(), height());
        sky.setColorAt(0, QColor("#37506b"));
        sky.setColorAt(0.5, QColor("#b7a79a"));
        sky.setColorAt(1, QColor("#e9e6e0"));
        painter->fillRect(boundingRect(), sky);
    }
};

void paintSizes(Gallery& gallery, ClockScene& scene, const QString& state) {
    gallery.paintThemes(scene, [&](const QString& theme) {
        for (const auto size : allSizeOptions()) {
            scene.show(rawValue(size), margin);
            Wallpaper wallpaper(scene.window_.contentItem());
            wallpaper.setZ(-1);
            wallpaper.setSize(scene.window_.size());
            gallery.save(scene.picture(),
                         QString("%1/%2-%3").arg(state, theme).arg(rawValue(size) * 100, 3, 'f', 0, '0'));
        }
    });
}

/// The background of a theme's dashboard.
void paintDecoration(Gallery& gallery, const Theme& theme, QQuickItem& decoration) {
    QQuickWindow window;
    window.setColor(toQColor(theme.dashboard.bg));
    window.resize(dashboardSize);
    decoration.setParentItem(window.contentItem());
    decoration.setSize(dashboardSize);
    window.show();
    QGuiApplication::processEvents();
    gallery.save(window.grabWindow(), QString::fromStdString(theme.id) + "-decoration");
    decoration.setParentItem(nullptr);
}

void paintDecorations(Gallery& gallery, ClockScene& scene) {
    EditorialPaperGrain grain;
    paintDecoration(gallery, scene.themes_.theme("editorial"), grain);
    HackerScanlines lines;
    paintDecoration(gallery, scene.themes_.theme("hacker"), lines);
    LiquidBackground liquid;
    liquid.setTime(scene.presenter_->wallClock());
    liquid.setIntensity(liquidDecorationIntensity);
    liquid.setReduction(9);
    paintDecoration(gallery, scene.themes_.theme("liquid"), liquid);
}

}  // namespace

void paint(Gallery& gallery) {
    ClockScene scene;
    scene.startAt(Seconds(4 * 3600 + 58 * 60 + 36));
    scene.stars_ = 3;
    scene.runFor(std::chrono::seconds(1));
    scene.runFor(std::chrono::seconds(754));
    paintSizes(gallery, scene, "active");
    scene.presenter_->setTranslucent(false);
    paintSizes(gallery, scene, "opaque");
    scene.presenter_->setTranslucent(true);
    scene.machine_.inputActivity.set(400);
    scene.runFor(std::chrono::seconds(2));
    paintSizes(gallery, scene, "idle");
    paintDecorations(gallery, scene);
}

}  // namespace tidewatch
