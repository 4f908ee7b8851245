#include "shell/windows/window_outline.h"

#include <QBitmap>
#include <QPainter>
#include <cmath>

namespace tidewatch {

namespace {

QRegion roundedRegion(const QSize& size, double radius) {
    QBitmap bitmap(size);
    bitmap.clear();
    QPainter painter(&bitmap);
    painter.setBrush(Qt::color1);
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(QRect({}, size), radius, radius);
    painter.end();
    return QRegion(bitmap);
}

}  // namespace

WindowOutline::WindowOutline(QQuickWindow& window, platform::WindowSystem& windowSystem)
    : window_(window), windowSystem_(windowSystem), shadow_(window.contentItem()) {}

void WindowOutline::setCompositing(bool compositing) {
    margin_ = compositing ? PanelShadow::reach : 0;
    shadow_.setVisible(compositing);
}

void WindowOutline::layOut(QQuickItem& panel, platform::Point origin, PanelSize size, double cornerRadius) {
    panel.setPosition({margin_, margin_});
    panel.setSize({size.width, size.height});
    shadow_.setSize({size.width + 2 * margin_, size.height + 2 * margin_});
    shadow_.setCornerRadius(cornerRadius);
    window_.setGeometry(qRound(origin.x - margin_), qRound(origin.y - margin_),
                        static_cast<int>(std::ceil(size.width + 2 * margin_)),
                        static_cast<int>(std::ceil(size.height + 2 * margin_)));
    cut(size, cornerRadius);
}

void WindowOutline::cut(PanelSize panel, double cornerRadius) {
    const double ratio = window_.devicePixelRatio();
    if (margin_ > 0) {
        window_.setMask({});
        windowSystem_.setInputRegion(
            window_.winId(), {margin_ * ratio, margin_ * ratio, panel.width * ratio, panel.height * ratio});
        return;
    }
    window_.setMask(roundedRegion(window_.size(), cornerRadius));
    windowSystem_.setInputRegion(window_.winId(), {0, 0, window_.width() * ratio, window_.height() * ratio});
}

}  // namespace tidewatch
