#include "shell/windows/statistics_window.h"

#include <QCloseEvent>
#include <QTimer>
#include <utility>

#include "platform/api/process_memory.h"
#include "shell/statistics_frame.h"
#include "ui/style/qt_color.h"

namespace tidewatch {

namespace {

constexpr QSize leastSize(820, 560);  // what the user can make of it

}  // namespace

/// The window itself, from one opening to the next closing.
class QuickStatisticsWindow::Frame final : public QQuickWindow {
public:
    explicit Frame(std::function<void()> askedToClose) : askedToClose_(std::move(askedToClose)) {
        setTitle("FATHOM · Estadísticas");
        setMinimumSize(leastSize);
    }

    void setView(std::unique_ptr<QQuickItem> view) {
        view_ = std::move(view);
        view_->setParentItem(contentItem());
        view_->setFocus(true);
        view_->setSize(size());
    }

protected:
    void closeEvent(QCloseEvent* event) override {
        event->ignore();
        askedToClose_();
    }

    void resizeEvent(QResizeEvent* event) override {
        QQuickWindow::resizeEvent(event);
        if (view_) view_->setSize(size());
    }

private:
    std::unique_ptr<QQuickItem> view_;
    std::function<void()> askedToClose_;
};

QuickStatisticsWindow::QuickStatisticsWindow(const Needs& needs, Content content)
    : with_(needs),
      content_(std::move(content)),
      themeChanges_(needs.broadcaster.observe<ThemeChanged>([this](const auto&) { wearTheme(); })) {}

QuickStatisticsWindow::~QuickStatisticsWindow() = default;

void QuickStatisticsWindow::showWindow() {
    if (!window_) {
        auto window = std::make_unique<Frame>([this] { close(); });
        window->create();
        // While the view is being made, the desktop has time to answer.
        with_.windowSystem.requestFrame(window->winId());
        auto view = content_.makeView();
        if (!view) return;
        window->setView(std::move(view));
        window_ = std::move(window);
    }
    wearTheme();
    const auto target = placement();
    // A window manager takes no size for a window that it keeps as large as the screen.
    if (window_->isVisible()) window_->showNormal();
    window_->setGeometry(target);
    window_->showNormal();
    window_->raise();
    window_->requestActivate();
    with_.windowSystem.activate(window_->winId());
    with_.broadcaster.post(DashboardWillShow{});
}

void QuickStatisticsWindow::close() {
    if (!window_) return;
    window_->hide();
    retired_ = std::move(window_);
    QTimer::singleShot(0, &retirement_, [this] { destroyRetired(); });
    content_.disappeared();
}

bool QuickStatisticsWindow::isVisible() const {
    return window_ && window_->isVisible() && !window_->windowStates().testFlag(Qt::WindowMinimized);
}

void QuickStatisticsWindow::wearTheme() {
    if (!window_) return;
    const auto& style = with_.theme.active().dashboard;
    window_->setColor(toQColor(style.nsBackground));
    with_.windowSystem.setFrameShade(window_->winId(), style.nsAppearance == Appearance::dark
                                                           ? platform::FrameShade::dark
                                                           : platform::FrameShade::light);
}

QRect QuickStatisticsWindow::placement() {
    const auto frame = statisticsFrame(with_.screens);
    // A window that fills the screen has another frame until the window manager has taken it back.
    const auto filling = Qt::WindowMaximized | Qt::WindowFullScreen;
    if ((window_->windowStates() & filling) == 0 || !margins_) {
        margins_ = with_.windowSystem.frameMargins(window_->winId());
    }
    const auto& margins = *margins_;
    const double ratio = window_->devicePixelRatio();
    return QRectF(frame.x, frame.y, frame.width, frame.height)
        .adjusted(margins.left / ratio, margins.top / ratio, -margins.right / ratio, -margins.bottom / ratio)
        .toRect();
}

void QuickStatisticsWindow::destroyRetired() {
    if (!retired_) return;
    retired_.reset();
    content_.viewDestroyed();
    with_.memory.giveBackUnused();
}

}  // namespace tidewatch
