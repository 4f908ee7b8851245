#pragma once

#include <qqmlregistration.h>
#include <QList>
#include <QObject>
#include <QStringList>
#include <vector>

#include "analysis/views/dashboard.h"
#include "analysis/views/header_presenter.h"
#include "base/signal.h"
#include "core/broadcaster.h"
#include "core/timer_engine.h"
#include "platform/api/clock.h"
#include "ui/backgrounds/wall_clock.h"
#include "ui/models/pane.h"
#include "wellbeing/views/break_presenter.h"

namespace tidewatch {

/// The statistics window as a whole: the panes that stand in its row, the tabs in the first of them, and
/// which one is on show. It outlives the window's views. Each time the window is about to be shown it brings
/// the files and the figures up to date. Main thread only.
class StatsPresenter final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    /// What stands side by side, from the left: the tabs, and what the rooms add.
    Q_PROPERTY(QList<tidewatch::Pane> panes READ panes CONSTANT FINAL)
    /// The titles of the tabs.
    Q_PROPERTY(QList<QString> tabs READ tabs CONSTANT FINAL)
    /// The place of the tab on show among tabs().
    Q_PROPERTY(int tabIndex READ tabIndex NOTIFY tabChanged FINAL)
    Q_PROPERTY(tidewatch::Pane tabOnShow READ tabOnShow NOTIFY tabChanged FINAL)
    Q_PROPERTY(tidewatch::HeaderPresenter* header READ header CONSTANT FINAL)
    Q_PROPERTY(tidewatch::BreakPresenter* breakAlert READ breakAlert CONSTANT FINAL)
    Q_PROPERTY(tidewatch::WallClock* wallClock READ wallClock CONSTANT FINAL)

public:
    /// What the window shows; all of it must outlive the presenter.
    struct Content {
        const platform::Clock& clock;
        Broadcaster& broadcaster;
        CounterStores counters;
        BreakReminder& breakReminder;
        Dashboard& dashboard;
        /// In their order; at least one.
        std::vector<Pane> tabs;
        /// What stands beside the tabs.
        std::vector<Pane> besideTabs;
    };

    explicit StatsPresenter(Content content);

    [[nodiscard]] QList<Pane> panes();
    [[nodiscard]] QStringList tabs() const;
    [[nodiscard]] int tabIndex() const;
    [[nodiscard]] Pane tabOnShow() const;
    [[nodiscard]] HeaderPresenter* header() { return dashboard_.header(); }
    [[nodiscard]] BreakPresenter* breakAlert() { return &breakAlert_; }
    [[nodiscard]] WallClock* wallClock() { return &wallClock_; }

    /// A place that is none of tabs() changes nothing.
    Q_INVOKABLE void selectTab(int index);

    /// The window was closed: nothing is refreshed any more.
    void disappear();

Q_SIGNALS:
    void tabChanged();

private:
    void reloadAll();
    void updateVisibleTab();

    const CounterStores counters_;
    Dashboard& dashboard_;
    const std::vector<Pane> tabs_;
    const std::vector<Pane> besideTabs_;
    WallClock wallClock_;
    BreakPresenter breakAlert_;
    bool appeared_ = false;
    Connection willShow_;
};

}  // namespace tidewatch
