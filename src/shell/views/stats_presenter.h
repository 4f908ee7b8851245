#pragma once

#include <qqmlregistration.h>
#include <QList>
#include <QObject>
#include <QStringList>
#include <vector>

#include "analysis/views/dashboard.h"
#include "analysis/views/header_presenter.h"
#include "base/signal.h"
#include "claude/claude_usage_monitor.h"
#include "core/broadcaster.h"
#include "core/timer_engine.h"
#include "platform/api/clock.h"
#include "ui/backgrounds/wall_clock.h"
#include "ui/models/pane.h"
#include "wellbeing/views/break_presenter.h"

namespace tidewatch {

/// The whole statistics window: its row of panes, the tabs in the first of them, and the current tab.
/// Outlives the window's views. Each time the window is about to be shown it flushes the record and reloads
/// the figures, and scans the Claude logs. Main thread only.
class StatsPresenter final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    /// The panes from left to right: the tabs, and those added by rooms.
    Q_PROPERTY(QList<tidewatch::Pane> panes READ panes CONSTANT FINAL)
    /// The titles of the tabs.
    Q_PROPERTY(QList<QString> tabs READ tabs CONSTANT FINAL)
    /// The index of the current tab in tabs().
    Q_PROPERTY(int tabIndex READ tabIndex NOTIFY tabChanged FINAL)
    Q_PROPERTY(tidewatch::Pane tabOnShow READ tabOnShow NOTIFY tabChanged FINAL)
    Q_PROPERTY(tidewatch::HeaderPresenter* header READ header CONSTANT FINAL)
    Q_PROPERTY(tidewatch::BreakPresenter* breakAlert READ breakAlert CONSTANT FINAL)
    Q_PROPERTY(tidewatch::WallClock* wallClock READ wallClock CONSTANT FINAL)

public:
    /// All of it must outlive the presenter.
    struct Content {
        const platform::Clock& clock;
        Broadcaster& broadcaster;
        CounterStores counters;
        BreakReminder& breakReminder;
        Dashboard& dashboard;
        ClaudeUsageMonitor& claude;
        /// In display order; at least one.
        std::vector<Pane> tabs;
        /// The panes beside the tabs.
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

    /// An index outside tabs() has no effect.
    Q_INVOKABLE void selectTab(int index);

    /// The window was closed: stops refreshing.
    void disappear();

Q_SIGNALS:
    void tabChanged();

private:
    void reloadAll();
    void updateVisibleTab();

    const CounterStores counters_;
    Dashboard& dashboard_;
    ClaudeUsageMonitor& claude_;
    const std::vector<Pane> tabs_;
    const std::vector<Pane> besideTabs_;
    WallClock wallClock_;
    BreakPresenter breakAlert_;
    bool appeared_ = false;
    Connection willShow_;
};

}  // namespace tidewatch
