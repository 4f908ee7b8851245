// draw_icons FOLDER NAME SIZE... : draws the program icon as FOLDER/<size>x<size>/apps/NAME.png for each
// size, and as FOLDER/scalable/apps/NAME.svg.

#include <QDir>
#include <QFile>
#include <cstdio>
#include <cstdlib>
#include <functional>

#include "packaging/icon_svg.h"
#include "shell/icons/fathom_icons.h"

namespace {

using tidewatch::fathom::appIcon;

/// Returns whether `write` could write the file in this folder of the icon theme.
bool made(const QDir& theme, const QString& folder, const QString& file,
          const std::function<bool(QString)>& write) {
    const auto path = theme.filePath(folder + "/apps/" + file);
    if (theme.mkpath(folder + "/apps") && write(path)) return true;
    std::fprintf(stderr, "draw_icons: cannot write %s\n", qPrintable(path));
    return false;
}

bool writeSvg(const QString& path) {
    QFile file(path);
    const auto svg = tidewatch::iconSvg(tidewatch::fathom::appIconShapes(), tidewatch::fathom::appIconUnits);
    return file.open(QIODevice::WriteOnly) && file.write(svg) == svg.size() && file.flush();
}

}  // namespace

int main(int argumentCount, char* arguments[]) {
    if (argumentCount < 4) {
        std::fputs("usage: draw_icons FOLDER NAME SIZE...\n", stderr);
        return 2;
    }
    const QDir theme(arguments[1]);
    const QString name = arguments[2];
    if (!made(theme, "scalable", name + ".svg", writeSvg)) return EXIT_FAILURE;
    for (int i = 3; i < argumentCount; ++i) {
        const QString size = arguments[i];
        const auto writePng = [&size](const QString& path) { return appIcon(size.toInt()).save(path); };
        if (!made(theme, size + 'x' + size, name + ".png", writePng)) return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
