#include "tools/demo/games_window.h"

#include <QCloseEvent>
#include <QPoint>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>
#include <QTimer>
#include <functional>
#include <utility>

#include "ui/style/qt_color.h"

namespace tidewatch {
namespace {

constexpr QSize panelSize(214, 374);
constexpr QPoint gapToTheScreen(24, 64);

}  // namespace

class GamesWindow::Frame final : public QQuickWindow {
public:
    Frame(std::unique_ptr<QQuickItem> view, std::function<void()> askedToClose)
        : view_(std::move(view)), askedToClose_(std::move(askedToClose)) {
        setTitle("Mini-Arcade");
        setMinimumSize(panelSize);
        setMaximumSize(panelSize);
        view_->setParentItem(contentItem());
        view_->setFocus(true);
        view_->setSize(panelSize);
    }

protected:
    void closeEvent(QCloseEvent* event) override {
        event->ignore();
        askedToClose_();
    }

private:
    std::unique_ptr<QQuickItem> view_;
    std::function<void()> askedToClose_;
};

GamesWindow::GamesWindow(DesktopComposition& program, platform::ProcessMemory& memory)
    : program_(program),
      memory_(memory),
      presenter_(program.games()),
      statisticsShown_(program.broadcaster().observe<DashboardWillShow>([this](const auto&) { open(); })),
      themeChanges_(program.broadcaster().observe<ThemeChanged>([this](const auto&) { applyTheme(); })) {}

GamesWindow::~GamesWindow() = default;

void GamesWindow::open() {
    if (!window_) {
        auto view = program_.surfaces().makeView("GamesPanel", presenter_, "Tidewatch.Wellbeing");
        if (!view) return;
        window_ = std::make_unique<Frame>(std::move(view), [this] { close(); });
        window_->resize(panelSize);
        const auto free = window_->screen()->availableGeometry();
        // Away from the clock, which is at the top.
        window_->setFramePosition(free.bottomRight() - QPoint(panelSize.width(), panelSize.height()) -
                                  gapToTheScreen);
        applyTheme();
    }
    presenter_.setVisible(true);
    window_->show();
    window_->raise();
}

void GamesWindow::close() {
    presenter_.setVisible(false);
    window_->hide();
    retired_ = std::move(window_);
    QTimer::singleShot(0, &retirement_, [this] {
        retired_.reset();
        program_.surfaces().clearViewCache();
        memory_.releaseUnused();
    });
}

void GamesWindow::applyTheme() {
    if (window_) window_->setColor(toQColor(program_.theme().active().dashboard.nsBackground));
}

}  // namespace tidewatch
