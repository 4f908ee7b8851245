// Paints the tab "Claude" and the sidebar's card in every theme and state into pictures: claude_gallery
// FOLDER

#include <QDir>
#include <QGuiApplication>
#include <cstdio>
#include <functional>

#include "tests/claude/views/claude_scene.h"
#include "ui/style/fonts.h"

namespace tidewatch {
namespace {

void paint(ClaudeScene& scene, const QDir& folder, const QString& state) {
    for (const auto& theme : scene.themes_.themes()) {
        scene.theme_.switchTo(theme.id);
        const auto name = state + "-" + QString::fromStdString(theme.id);
        for (const int width : {820, 1130}) {
            scene.showTab({width, 1060});
            scene.picture().save(folder.filePath(QString("%1-%2.png").arg(name).arg(width)));
        }
        scene.showCard();
        scene.picture().save(folder.filePath(name + "-card.png"));
    }
}

int paintAll(const QString& path) {
    const QDir folder(path);
    if (!folder.mkpath(".")) return 1;
    QStringList warnings;
    const auto paintState = [&](const QString& state, const std::function<void(ClaudeScene&)>& prepare) {
        ClaudeScene scene;
        prepare(scene);
        scene.ClaudeViewsWorld::show();
        paint(scene, folder, state);
        warnings += scene.viewWarnings_;
    };
    paintState("empty", [](ClaudeScene&) {});
    paintState("quiet", [](ClaudeScene& scene) { scene.useLastMonth(); });
    paintState("used", [](ClaudeScene& scene) { scene.useForMonths(); });
    for (const auto& warning : warnings) std::fprintf(stderr, "%s\n", qPrintable(warning));
    return warnings.isEmpty() ? 0 : 1;
}

}  // namespace
}  // namespace tidewatch

int main(int argc, char* argv[]) {
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    if (application.arguments().size() != 2) {
        std::fprintf(stderr, "usage: claude_gallery FOLDER\n");
        return 2;
    }
    tidewatch::registerFonts();
    return tidewatch::paintAll(application.arguments().at(1));
}
