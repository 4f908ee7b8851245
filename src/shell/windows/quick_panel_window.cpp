#include "shell/windows/quick_panel_window.h"

#include <QBitmap>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <algorithm>
#include <cmath>
#include <utility>

namespace tidewatch {

namespace {

constexpr int growthMilliseconds = 200;

platform::Point globalPosition(const QMouseEvent& event) {
    return {event.globalPosition().x(), event.globalPosition().y()};
}

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

/// `size`, made smaller in its proportions where no screen is large enough to show it: pixels that nobody
/// sees cost memory all the same.
PanelSize withinScreens(const PanelSize& size) {
    QSizeF largest;
    for (const auto* screen : QGuiApplication::screens()) largest = largest.expandedTo(screen->size());
    if (largest.isEmpty()) return size;
    if (!std::isfinite(size.width) || !std::isfinite(size.height)) return {largest.width(), largest.height()};
    const double factor = std::min({1.0, largest.width() / size.width, largest.height() / size.height});
    return {size.width * factor, size.height * factor};
}

}  // namespace

QuickPanelWindow::QuickPanelWindow(platform::WindowSystem& windowSystem, Content content, PanelSize size)
    : windowSystem_(windowSystem),
      content_(std::move(content)),
      panel_(withinScreens(size)),
      shadow_(contentItem()) {
    setTitle("Tidewatch");
    setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus);
    setColor(Qt::transparent);
    content_.item->setParentItem(contentItem());
    growth_.setDuration(growthMilliseconds);
    growth_.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&growth_, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        const auto current = value.toSizeF();
        panel_ = {current.width(), current.height()};
        layOut(origin());
    });
    create();
    compositing_ = windowSystem_.onCompositingChanged([this] { adaptToCompositor(); });
    covering_ = windowSystem_.onOcclusionChanged(winId(), [this](bool covered) {
        covered_ = covered;
        updateOnScreen();
    });
    adaptToCompositor();
}

QuickPanelWindow::~QuickPanelWindow() = default;

PanelSize QuickPanelWindow::panelSize() const {
    return panel_;
}

platform::Point QuickPanelWindow::origin() const {
    return {x() + margin_, y() + margin_};
}

void QuickPanelWindow::setOrigin(platform::Point origin) {
    setPosition(qRound(origin.x - margin_), qRound(origin.y - margin_));
}

void QuickPanelWindow::resize(PanelSize wanted) {
    const auto size = withinScreens(wanted);
    growth_.stop();
    if (!isVisible()) {
        panel_ = size;
        layOut(origin());
        return;
    }
    growth_.setStartValue(QSizeF(panel_.width, panel_.height));
    growth_.setEndValue(QSizeF(size.width, size.height));
    growth_.start();
}

void QuickPanelWindow::orderFrontRegardless() {
    // A window manager forgets its hints when a window goes.
    if (!isVisible()) windowSystem_.prepareFloating(winId());
    show();
    raise();
    updateOnScreen();
}

void QuickPanelWindow::orderOut() {
    hide();
    updateOnScreen();
}

bool QuickPanelWindow::isVisible() const {
    return QQuickWindow::isVisible();
}

void QuickPanelWindow::setGestures(Gestures gestures) {
    gestures_ = std::move(gestures);
}

void QuickPanelWindow::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && gestures_.mouseDown) gestures_.mouseDown(globalPosition(*event));
    if (event->button() == Qt::RightButton && gestures_.menuRequested) gestures_.menuRequested();
}

void QuickPanelWindow::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton) && gestures_.mouseDragged) {
        gestures_.mouseDragged(globalPosition(*event));
    }
}

void QuickPanelWindow::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && gestures_.mouseUp) gestures_.mouseUp(globalPosition(*event));
}

void QuickPanelWindow::exposeEvent(QExposeEvent* event) {
    QQuickWindow::exposeEvent(event);
    updateOnScreen();
}

void QuickPanelWindow::closeEvent(QCloseEvent* event) {
    // Only the status menu hides the clock; a window manager that asks to close it is not obeyed.
    event->ignore();
}

void QuickPanelWindow::adaptToCompositor() {
    const auto place = origin();
    const bool compositing = windowSystem_.isCompositing();
    margin_ = compositing ? PanelShadow::reach : 0;
    shadow_.setVisible(compositing);
    content_.setTranslucent(compositing);
    layOut(place);
}

void QuickPanelWindow::layOut(platform::Point origin) {
    const double radius = content_.cornerRadius(panel_);
    content_.item->setPosition({margin_, margin_});
    content_.item->setSize({panel_.width, panel_.height});
    shadow_.setSize({panel_.width + 2 * margin_, panel_.height + 2 * margin_});
    shadow_.setCornerRadius(radius);
    setGeometry(qRound(origin.x - margin_), qRound(origin.y - margin_),
                static_cast<int>(std::ceil(panel_.width + 2 * margin_)),
                static_cast<int>(std::ceil(panel_.height + 2 * margin_)));
    cutToShape(radius);
}

void QuickPanelWindow::cutToShape(double radius) {
    const double ratio = devicePixelRatio();
    if (margin_ > 0) {
        setMask({});
        windowSystem_.setInputRegion(
            winId(), {margin_ * ratio, margin_ * ratio, panel_.width * ratio, panel_.height * ratio});
        return;
    }
    setMask(roundedRegion(size(), radius));
    windowSystem_.setInputRegion(winId(), {0, 0, width() * ratio, height() * ratio});
}

void QuickPanelWindow::updateOnScreen() {
    content_.setOnScreen(isExposed() && !covered_);
}

}  // namespace tidewatch
