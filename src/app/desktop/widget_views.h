#pragma once

#include <QObject>
#include <QQuickItem>
#include <functional>
#include <memory>

#include "shell/views/widgets/gadgets.h"
#include "shell/windows/quick_floating_window.h"
#include "wellbeing/views/games/games_presenter.h"

namespace tidewatch {

/// What the windows of the widgets show. Main thread only.
class WidgetViews final {
public:
    /// Creates the view of a presenter; null if it cannot be created.
    using MakeView = std::function<std::unique_ptr<QQuickItem>(QObject& presenter)>;

    /// `hub` and what is in `games` must outlive this object, which must outlive the windows. The keys of
    /// `games` are not used: a widget never has the keyboard.
    /// `lastGone` is called from the main loop after the last of the views was destroyed.
    WidgetViews(WidgetHub& hub, GamesPresenter::Sources games, MakeView makeView,
                std::function<void()> lastGone);

    /// For one window at a time.
    [[nodiscard]] QuickFloatingWindow::Content content(WidgetKind kind);

private:
    /// Keys pressed in other windows are not the widget's.
    class NoKeys final : public KeyMonitor {
    public:
        [[nodiscard]] std::unique_ptr<KeyObservation> observe(Handler) override {
            return std::make_unique<KeyObservation>();
        }
    };

    void viewDestroyed(GadgetPresenter& gadget);

    const MakeView makeView_;
    const std::function<void()> lastGone_;
    int views_ = 0;
    NoKeys keys_;
    Gadgets gadgets_;
    QObject context_;  ///< of what it has posted
};

}  // namespace tidewatch
