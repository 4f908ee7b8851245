// Draws an icon for each application of the demonstration: its initials on a rounded square.

#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <cstdio>

#include "tools/demo/demo_applications.h"

namespace {

using tidewatch::demo::DemoApplication;

constexpr int side = 128;  // pixels

QString text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QImage icon(const DemoApplication& app) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color(text(app.color));
    QLinearGradient ground(0, 0, 0, side);
    ground.setColorAt(0, color.lighter(116));
    ground.setColorAt(1, color.darker(112));
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    const QRectF square(6, 6, side - 12, side - 12);
    painter.drawRoundedRect(square, 28, 28);
    QFont font("Inter");
    font.setPixelSize(54);
    font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(QColor(255, 255, 255, 235));
    painter.drawText(square, Qt::AlignCenter, text(app.initials));
    return image;
}

}  // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const auto arguments = QGuiApplication::arguments();
    if (arguments.size() != 2) {
        std::fputs("usage: draw_demo_icons DIRECTORY\n", stderr);
        return 2;
    }
    QDir().mkpath(arguments[1]);
    for (const auto& app : tidewatch::demo::demoApplications()) {
        const auto path = arguments[1] + "/" + text(app.id) + ".png";
        if (!icon(app).save(path)) {
            std::fprintf(stderr, "draw_demo_icons: cannot write %s\n", qPrintable(path));
            return 1;
        }
    }
}
