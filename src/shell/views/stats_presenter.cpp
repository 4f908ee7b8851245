#include "shell/views/stats_presenter.h"

#include <algorithm>
#include <utility>

#include "ui/models/tab_presenter.h"

namespace tidewatch {

StatsPresenter::StatsPresenter(Content content)
    : counters_(content.counters),
      dashboard_(content.dashboard),
      claude_(content.claude),
      machine_(content.machine),
      tabs_(std::move(content.tabs)),
      besideTabs_(std::move(content.besideTabs)),
      wallClock_(content.clock),
      breakAlert_(content.breakReminder),
      willShow_(content.broadcaster.observe<DashboardWillShow>([this](const auto&) { reloadAll(); })) {}

Pane StatsPresenter::tabsPane() {
    return {.id = "tabs", .title = "", .view = viewUrl("Tidewatch.Shell", "TabsPane"), .presenter = this};
}

bool StatsPresenter::isFolded() const {
    constexpr double separator = 1;
    double needed = tabsWidth;
    for (const auto& pane : besideTabs_) needed += separator + pane.width;
    return !besideTabs_.empty() && width_ < needed;
}

void StatsPresenter::setWidth(double width) {
    if (width == width_) return;
    width_ = width;
    setOpened(isOpened_ && isFolded());
}

void StatsPresenter::toggleBeside() {
    if (isFolded()) setOpened(!isOpened_);
}

void StatsPresenter::setOpened(bool opened) {
    isOpened_ = opened;
    updateVisibleTab();
    Q_EMIT besideChanged();
}

void StatsPresenter::setMinimized(bool minimized) {
    if (minimized == minimized_) return;
    minimized_ = minimized;
    machine_.setPaused(minimized);
    Q_EMIT minimizedChanged();
}

QStringList StatsPresenter::tabs() const {
    QStringList titles;
    for (const auto& tab : tabs_) titles.append(tab.title);
    return titles;
}

int StatsPresenter::tabIndex() const {
    const auto selected =
        std::find_if(tabs_.begin(), tabs_.end(),
                     [id = dashboard_.selectedTab()](const Pane& tab) { return tab.id == id; });
    return static_cast<int>(selected - tabs_.begin());
}

Pane StatsPresenter::tabOnShow() const {
    const auto index = static_cast<std::size_t>(tabIndex());
    return index < tabs_.size() ? tabs_[index] : Pane();
}

void StatsPresenter::selectTab(int index) {
    if (index < 0 || index >= static_cast<int>(tabs_.size()) || index == tabIndex()) return;
    dashboard_.selectTab(tabs_[static_cast<std::size_t>(index)].id);
    updateVisibleTab();
    Q_EMIT tabChanged();
}

void StatsPresenter::disappear() {
    appeared_ = false;
    dashboard_.model().stopLiveRefresh();
    setOpened(false);
    setMinimized(false);
}

void StatsPresenter::reloadAll() {
    counters_.daily.flush();
    counters_.apps.flush();
    counters_.hours.flush();
    counters_.minutes.flush();
    dashboard_.model().reload();
    dashboard_.model().startLiveRefresh();
    claude_.forceRefresh();
    appeared_ = true;
    updateVisibleTab();
}

void StatsPresenter::updateVisibleTab() {
    const auto selected = dashboard_.selectedTab();
    for (const auto& tab : tabs_) setPaneVisible(tab, appeared_ && tab.id == selected);
    for (const auto& pane : besideTabs_) setPaneVisible(pane, appeared_ && besideShown());
}

}  // namespace tidewatch
