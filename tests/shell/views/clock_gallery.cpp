// Paints the clock in every theme at every size, active, idle and opaque, and the dashboards'
// backgrounds, into pictures: clock_gallery FOLDER

#include <QDir>
#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QQuickPaintedItem>
#include <cstdio>

#include "core/size_option.h"
#include "shell/views/clock_scene.h"
#include "ui/backgrounds/decorations.h"
#include "ui/backgrounds/liquid_background.h"
#include "ui/style/fonts.h"
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

void paintTheme(ClockScene& scene, const Theme& theme, const QDir& folder) {
    scene.theme_.switchTo(theme.id);
    for (const auto size : allSizeOptions()) {
        scene.show(rawValue(size), margin);
        Wallpaper wallpaper(scene.window_.contentItem());
        wallpaper.setZ(-1);
        wallpaper.setSize(scene.window_.size());
        const auto name = QString("%1-%2.png")
                              .arg(QString::fromStdString(theme.id))
                              .arg(rawValue(size) * 100, 3, 'f', 0, '0');
        scene.picture().save(folder.filePath(name));
    }
}

/// The background of a theme's dashboard.
void paintDecoration(const Theme& theme, QQuickItem& decoration, const QDir& folder) {
    QQuickWindow window;
    window.setColor(toQColor(theme.dashboard.bg));
    window.resize(dashboardSize);
    decoration.setParentItem(window.contentItem());
    decoration.setSize(dashboardSize);
    window.show();
    QGuiApplication::processEvents();
    window.grabWindow().save(folder.filePath(QString::fromStdString(theme.id) + "-decoration.png"));
    decoration.setParentItem(nullptr);
}

void paintDecorations(ClockScene& scene, const QDir& folder) {
    EditorialPaperGrain grain;
    paintDecoration(scene.themes_.theme("editorial"), grain, folder);
    HackerScanlines lines;
    paintDecoration(scene.themes_.theme("hacker"), lines, folder);
    LiquidBackground liquid;
    liquid.setTime(scene.presenter_->wallClock());
    liquid.setIntensity(liquidDecorationIntensity);
    liquid.setReduction(9);
    paintDecoration(scene.themes_.theme("liquid"), liquid, folder);
}

int paintAll(const QString& path) {
    const QDir folder(path);
    if (!folder.mkpath("active") || !folder.mkpath("idle") || !folder.mkpath("opaque")) return 1;
    ClockScene scene;
    scene.startAt(Seconds(4 * 3600 + 58 * 60 + 36));
    scene.stars_ = 3;
    scene.runFor(std::chrono::seconds(1));
    scene.runFor(std::chrono::seconds(754));
    for (const auto& theme : scene.themes_.themes())
        paintTheme(scene, theme, QDir(folder.filePath("active")));
    scene.presenter_->setTranslucent(false);
    for (const auto& theme : scene.themes_.themes())
        paintTheme(scene, theme, QDir(folder.filePath("opaque")));
    scene.presenter_->setTranslucent(true);
    scene.machine_.inputActivity.set(400);
    scene.runFor(std::chrono::seconds(2));
    for (const auto& theme : scene.themes_.themes()) paintTheme(scene, theme, QDir(folder.filePath("idle")));
    paintDecorations(scene, folder);
    for (const auto& warning : scene.viewWarnings_) std::fprintf(stderr, "%s\n", qPrintable(warning));
    return scene.viewWarnings_.isEmpty() ? 0 : 1;
}

}  // namespace
}  // namespace tidewatch

int main(int argc, char* argv[]) {
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    if (application.arguments().size() != 2) {
        std::fprintf(stderr, "usage: clock_gallery FOLDER\n");
        return 2;
    }
    tidewatch::registerFonts();
    return tidewatch::paintAll(application.arguments().at(1));
}
