// Paints every tab of the statistics window in every theme at two sizes into pictures: stats_gallery FOLDER
// [THEME]

#include <QDir>
#include <QGuiApplication>
#include <cstdio>

#include "shell/views/stats_scene.h"
#include "ui/style/fonts.h"

namespace tidewatch {
namespace {

constexpr std::array sizes = {QSize(1360, 1000), QSize(820, 560)};

int paintAll(const QString& path, const QString& onlyTheme) {
    const QDir folder(path);
    if (!folder.mkpath(".")) return 1;
    StatsScene scene;
    scene.bookBelievableWork();
    scene.appear();
    for (const auto& theme : scene.services_.themes.themes()) {
        const auto id = QString::fromStdString(theme.id);
        if (!onlyTheme.isEmpty() && id != onlyTheme) continue;
        scene.theme_.switchTo(theme.id);
        for (const auto& size : sizes) {
            for (int tab = 0; tab < scene.presenter_.tabs().size(); ++tab) {
                scene.presenter_.selectTab(tab);
                scene.show(size);
                const auto name =
                    QString("%1-%2-%3.png").arg(id).arg(size.width()).arg(scene.presenter_.tabs()[tab]);
                scene.picture().save(folder.filePath(name));
            }
        }
    }
    for (const auto& warning : scene.viewWarnings_) std::fprintf(stderr, "%s\n", qPrintable(warning));
    return scene.viewWarnings_.isEmpty() ? 0 : 1;
}

}  // namespace
}  // namespace tidewatch

int main(int argc, char* argv[]) {
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    const auto arguments = application.arguments();
    if (arguments.size() < 2) {
        std::fprintf(stderr, "usage: stats_gallery FOLDER [THEME]\n");
        return 2;
    }
    tidewatch::registerFonts();
    return tidewatch::paintAll(arguments.at(1), arguments.value(2));
}
