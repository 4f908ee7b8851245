#include "shell/windows/statistics_window.h"

#include <QCloseEvent>
#include <QTimer>
#include <utility>

#include "platform/api/process_memory.h"
#include "shell/statistics_frame.h"
#include "ui/style/qt_color.h"

namespace tidewatch {

namespace {

constexpr QSize minSize(820, 560);  // what the user can make of it

}  // namespace

/// The window itself, which exists while the statistics are open.
class QuickStatisticsWindow::Frame final : public QQuickWindow {
public:
    Frame(std::function<void()> askedToClose, std::function<void()> exposed)
        : askedToClose_(std::move(askedToClose)), exposed_(std::move(exposed)) {
        setTitle("FATHOM · Estadísticas");
        setMinimumSize(minSize);
    }

    void setView(std::unique_ptr<QQuickItem> view) {
        view_ = std::move(view);
        view_->setParentItem(contentItem());
        view_->setFocus(true);
        view_->setSize(size());
    }

protected:
    void exposeEvent(QExposeEvent* event) override {
        QQuickWindow::exposeEvent(event);
        if (!isExposed()) return;
        if (const auto first = std::exchange(exposed_, nullptr)) first();
    }

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
    std::function<void()> exposed_;
};

QuickStatisticsWindow::QuickStatisticsWindow(const Dependencies& dependencies, Content content)
    : dependencies_(dependencies),
      content_(std::move(content)),
      themeChanges_(dependencies.broadcaster.observe<ThemeChanged>([this](const auto&) { applyTheme(); })) {}

QuickStatisticsWindow::~QuickStatisticsWindow() = default;

void QuickStatisticsWindow::showWindow() {
    if (!window_) {
        auto& system = dependencies_.windowSystem;
        auto window = std::make_unique<Frame>([this] { close(); }, [this] { becomeMaximizable(); });
        window->create();
        // Some desktops maximise a new window that covers most of the screen.
        system.setMaximizable(window->winId(), false);
        // The desktop can answer while the view is being created.
        system.requestFrame(window->winId());
        frameReports_ = system.onFrameReported(window->winId(), [this] { correctForFrame(); });
        auto view = content_.makeView();
        if (!view) return;
        window->setView(std::move(view));
        window_ = std::move(window);
        awaitsFrame_ = true;
    }
    applyTheme();
    const auto target = placement();
    // Window managers ignore sizes for maximised windows.
    if (window_->isVisible()) window_->showNormal();
    window_->setGeometry(target);
    window_->showNormal();
    window_->raise();
    window_->requestActivate();
    dependencies_.windowSystem.activate(window_->winId());
    dependencies_.broadcaster.post(DashboardWillShow{});
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

void QuickStatisticsWindow::applyTheme() {
    if (!window_) return;
    const auto& style = dependencies_.theme.active().dashboard;
    window_->setColor(toQColor(style.nsBackground));
    dependencies_.windowSystem.setFrameVariant(window_->winId(), style.nsAppearance == Appearance::dark
                                                                     ? platform::FrameVariant::dark
                                                                     : platform::FrameVariant::light);
}

QRect QuickStatisticsWindow::placement() {
    const auto frame = statisticsFrame(dependencies_.screens);
    // A maximised window has a different frame until the window manager has restored it.
    if (!fillsScreen() || !margins_) margins_ = dependencies_.windowSystem.frameMargins(window_->winId());
    const auto& margins = *margins_;
    const double ratio = window_->devicePixelRatio();
    return QRectF(frame.x, frame.y, frame.width, frame.height)
        .adjusted(margins.left / ratio, margins.top / ratio, -margins.right / ratio, -margins.bottom / ratio)
        .toRect();
}

void QuickStatisticsWindow::becomeMaximizable() {
    if (!window_) return;
    dependencies_.windowSystem.setMaximizable(window_->winId(), true);
    // One window manager draws the button only with the next change of the title bar.
    window_->setTitle(window_->title());
}

/// Some desktops report a frame only once the window is shown. Afterwards the window is the user's.
void QuickStatisticsWindow::correctForFrame() {
    if (!isVisible() || !std::exchange(awaitsFrame_, false) || fillsScreen()) return;
    const auto assumed = margins_;
    const auto corrected = placement();
    if (margins_ != assumed) window_->setGeometry(corrected);
}

bool QuickStatisticsWindow::fillsScreen() const {
    return (window_->windowStates() & (Qt::WindowMaximized | Qt::WindowFullScreen)) != 0;
}

void QuickStatisticsWindow::destroyRetired() {
    if (!retired_) return;
    retired_.reset();
    content_.viewDestroyed();
    dependencies_.memory.releaseUnused();
}

}  // namespace tidewatch
