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
#include "system/views/system_watch.h"
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
    /// The panes from left to right: that of the tabs, and those beside it.
    Q_PROPERTY(tidewatch::Pane tabsPane READ tabsPane CONSTANT FINAL)
    Q_PROPERTY(QList<tidewatch::Pane> besideTabs READ besideTabs CONSTANT FINAL)
    /// Of the whole view, in points. In a narrow one the panes beside the tabs are folded: hidden until they
    /// are opened, and then above the tabs.
    Q_PROPERTY(double width READ width WRITE setWidth NOTIFY besideChanged FINAL)
    Q_PROPERTY(bool isFolded READ isFolded NOTIFY besideChanged FINAL)
    Q_PROPERTY(bool besideShown READ besideShown NOTIFY besideChanged FINAL)
    Q_PROPERTY(QString foldText READ foldText NOTIFY besideChanged FINAL)
    /// Of the window: nothing in it can be seen.
    Q_PROPERTY(bool minimized READ isMinimized WRITE setMinimized NOTIFY minimizedChanged FINAL)
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
        SystemWatch& machine;
        /// In display order; at least one.
        std::vector<Pane> tabs;
        /// The panes beside the tabs.
        std::vector<Pane> besideTabs;
    };

    explicit StatsPresenter(Content content);

    /// The width that tabs need.
    static constexpr double tabsWidth = 820;

    [[nodiscard]] Pane tabsPane();
    [[nodiscard]] QList<Pane> besideTabs() const { return {besideTabs_.begin(), besideTabs_.end()}; }
    [[nodiscard]] double width() const { return width_; }
    void setWidth(double width);
    [[nodiscard]] bool isFolded() const;
    [[nodiscard]] bool besideShown() const { return !isFolded() || isOpened_; }
    /// What toggleBeside() does.
    [[nodiscard]] QString foldText() const { return isOpened_ ? "Ocultar el panel" : "Mostrar el panel"; }
    [[nodiscard]] bool isMinimized() const { return minimized_; }
    void setMinimized(bool minimized);
    [[nodiscard]] QStringList tabs() const;
    [[nodiscard]] int tabIndex() const;
    [[nodiscard]] Pane tabOnShow() const;
    [[nodiscard]] HeaderPresenter* header() { return dashboard_.header(); }
    [[nodiscard]] BreakPresenter* breakAlert() { return &breakAlert_; }
    [[nodiscard]] WallClock* wallClock() { return &wallClock_; }

    /// An index outside tabs() has no effect.
    Q_INVOKABLE void selectTab(int index);

    /// Opens or closes the panes beside the tabs; ignored unless they are folded.
    Q_INVOKABLE void toggleBeside();

    /// The window was closed: stops refreshing.
    void disappear();

Q_SIGNALS:
    void tabChanged();
    void besideChanged();
    void minimizedChanged();

private:
    void reloadAll();
    void updateVisibleTab();
    void setOpened(bool opened);

    const CounterStores counters_;
    Dashboard& dashboard_;
    ClaudeUsageMonitor& claude_;
    SystemWatch& machine_;
    const std::vector<Pane> tabs_;
    const std::vector<Pane> besideTabs_;
    WallClock wallClock_;
    BreakPresenter breakAlert_;
    bool appeared_ = false;
    double width_ = 0;
    bool isOpened_ = false;
    bool minimized_ = false;
    Connection willShow_;
};

}  // namespace tidewatch
