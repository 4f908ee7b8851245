#include "shell/windows/quick_floating_window.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <utility>

namespace tidewatch {

namespace {

constexpr int growthMilliseconds = 200;

/// How long a window manager may take to place a window.
constexpr int settlingMilliseconds = 2000;

platform::Point globalPosition(const QMouseEvent& event) {
    return {event.globalPosition().x(), event.globalPosition().y()};
}

/// Tool windows are above ordinary ones even where the stay-on-top state is ignored, so a window in the layer
/// below is an ordinary one.
Qt::WindowFlags flagsOf(WindowLayer layer) {
    const Qt::WindowFlags kind = layer == WindowLayer::above ? Qt::Tool | Qt::WindowStaysOnTopHint
                                                             : Qt::Window | Qt::WindowStaysOnBottomHint;
    return kind | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus;
}

/// `size`, scaled down proportionally if larger than every screen: pixels off screen cost memory too.
PanelSize withinScreens(const PanelSize& size) {
    QSizeF most;
    for (const auto* screen : QGuiApplication::screens()) most = most.expandedTo(screen->size());
    if (most.isEmpty()) return size;
    if (!std::isfinite(size.width) || !std::isfinite(size.height)) return {most.width(), most.height()};
    const double factor = std::min({1.0, most.width() / size.width, most.height() / size.height});
    return {size.width * factor, size.height * factor};
}

}  // namespace

QuickFloatingWindow::QuickFloatingWindow(platform::WindowSystem& windowSystem, WindowLayer layer,
                                         Content content, PanelSize size)
    : windowSystem_(windowSystem),
      content_(std::move(content)),
      wanted_(size),
      panel_(withinScreens(size)),
      outline_(*this, windowSystem) {
    setTitle(content_.title);
    setFlags(flagsOf(layer));
    // As for the toolkit's own tool tips: some window managers activate a new window whatever its flags say.
    setProperty("_q_showWithoutActivating", true);
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

QuickFloatingWindow::~QuickFloatingWindow() = default;

PanelSize QuickFloatingWindow::panelSize() const {
    return panel_;
}

platform::Point QuickFloatingWindow::origin() const {
    return {x() + outline_.margin(), y() + outline_.margin()};
}

void QuickFloatingWindow::setOrigin(platform::Point origin) {
    shownAt_.reset();
    setPosition(qRound(origin.x - outline_.margin()), qRound(origin.y - outline_.margin()));
}

void QuickFloatingWindow::resize(PanelSize wanted) {
    wanted_ = wanted;
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

void QuickFloatingWindow::fitToScreens() {
    growth_.stop();
    panel_ = withinScreens(wanted_);
    layOut(origin());
}

void QuickFloatingWindow::orderFrontRegardless() {
    if (!isVisible()) {
        // Window managers discard the hints of hidden windows.
        windowSystem_.prepareFloating(winId());
        shownAt_ = position();
        QTimer::singleShot(settlingMilliseconds, this, [this] { shownAt_.reset(); });
    }
    show();
    windowSystem_.joinAllWorkspaces(winId());
    raise();
    updateOnScreen();
}

void QuickFloatingWindow::orderOut() {
    hide();
    updateOnScreen();
}

bool QuickFloatingWindow::isVisible() const {
    return QQuickWindow::isVisible();
}

void QuickFloatingWindow::setGestures(Gestures gestures) {
    gestures_ = std::move(gestures);
}

bool QuickFloatingWindow::event(QEvent* event) {
    // The content first: one of its controls may handle the press.
    const bool handled = QQuickWindow::event(event);
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            mousePressed(*static_cast<QMouseEvent*>(event));
            break;
        case QEvent::MouseMove:
            mouseMoved(*static_cast<QMouseEvent*>(event));
            break;
        case QEvent::MouseButtonRelease:
            mouseReleased(*static_cast<QMouseEvent*>(event));
            break;
        default:
            break;
    }
    followResolution();
    return handled;
}

/// A window keeps its device pixels and its shape when its screen gets another scale factor, or when it comes
/// to a screen that has one.
void QuickFloatingWindow::followResolution() {
    if (devicePixelRatio() == ratio_) return;
    // After the toolkit's own steps on this change.
    QTimer::singleShot(0, this, [this] {
        if (devicePixelRatio() != ratio_) fitToScreens();
    });
}

void QuickFloatingWindow::mousePressed(const QMouseEvent& event) {
    takenByContent_ = event.exclusivePointGrabber() != nullptr;
    if (takenByContent_) return;
    if (event.button() == Qt::LeftButton && gestures_.mouseDown) gestures_.mouseDown(globalPosition(event));
    if (event.button() == Qt::RightButton && gestures_.menuRequested) gestures_.menuRequested();
}

void QuickFloatingWindow::mouseMoved(const QMouseEvent& event) {
    if (!takenByContent_ && event.buttons().testFlag(Qt::LeftButton) && gestures_.mouseDragged) {
        gestures_.mouseDragged(globalPosition(event));
    }
}

void QuickFloatingWindow::mouseReleased(const QMouseEvent& event) {
    if (!takenByContent_ && event.button() == Qt::LeftButton && gestures_.mouseUp) {
        gestures_.mouseUp(globalPosition(event));
    }
}

/// Some window managers place a window as if it had a frame, and only then see that it has none.
void QuickFloatingWindow::moveEvent(QMoveEvent* event) {
    QQuickWindow::moveEvent(event);
    const auto wanted = std::exchange(shownAt_, std::nullopt);
    if (isVisible() && wanted && event->pos() != *wanted) setPosition(*wanted);
}

void QuickFloatingWindow::exposeEvent(QExposeEvent* event) {
    QQuickWindow::exposeEvent(event);
    updateOnScreen();
}

void QuickFloatingWindow::closeEvent(QCloseEvent* event) {
    // Only the program's own menus hide it; the window manager's close requests are ignored.
    event->ignore();
}

void QuickFloatingWindow::adaptToCompositor() {
    const auto place = origin();
    const bool compositing = windowSystem_.isCompositing();
    outline_.setCompositing(compositing);
    content_.setTranslucent(compositing);
    layOut(place);
}

void QuickFloatingWindow::layOut(platform::Point origin) {
    shownAt_.reset();
    ratio_ = devicePixelRatio();
    outline_.layOut(*content_.item, origin, panel_, content_.cornerRadius(panel_));
}

void QuickFloatingWindow::updateOnScreen() {
    content_.setOnScreen(isExposed() && !covered_);
}

}  // namespace tidewatch
