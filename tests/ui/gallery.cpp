#include "ui/gallery.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>

namespace tidewatch {

Gallery::Gallery(QString folder, QString onlyTheme)
    : folder_(std::move(folder)), onlyTheme_(std::move(onlyTheme)) {}

void Gallery::save(const QImage& picture, const QString& name) {
    const QFileInfo file(QDir(folder_).filePath(name + ".png"));
    if (!file.dir().mkpath(".") || !picture.save(file.filePath()))
        warnings_.append("cannot write " + file.filePath());
}

QImage sheetOf(const std::vector<QImage>& pictures, int columns) {
    const auto one = pictures.front().size();
    const int count = static_cast<int>(pictures.size());
    const int rows = (count + columns - 1) / columns;
    QImage sheet(one.width() * columns, one.height() * rows, QImage::Format_RGB32);
    sheet.fill(Qt::black);
    QPainter painter(&sheet);
    for (int i = 0; i < count; ++i) {
        auto picture = pictures[static_cast<std::size_t>(i)];
        picture.setDevicePixelRatio(1);
        painter.drawImage(i % columns * one.width(), i / columns * one.height(), picture);
    }
    return sheet;
}

}  // namespace tidewatch
