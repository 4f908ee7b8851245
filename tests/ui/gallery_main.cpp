// Paints a gallery off screen, with the program's scene graph: GALLERY FOLDER [THEME]

#include <QGuiApplication>
#include <QQuickWindow>
#include <cstdio>

#include "ui/gallery.h"
#include "ui/style/fonts.h"

int main(int argc, char* argv[]) {
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    const auto arguments = QGuiApplication::arguments();
    if (arguments.size() < 2 || arguments.size() > 3) {
        std::fprintf(stderr, "usage: %s FOLDER [THEME]\n", argv[0]);
        return 2;
    }
    tidewatch::registerFonts();
    tidewatch::Gallery gallery(arguments.at(1), arguments.value(2));
    tidewatch::paint(gallery);
    for (const auto& warning : gallery.warnings()) std::fprintf(stderr, "%s\n", qPrintable(warning));
    return gallery.warnings().isEmpty() ? 0 : 1;
}
