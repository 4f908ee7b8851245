#include "shell/views/stats_presenter.h"

#include <algorithm>
#include <utility>

#include "ui/models/tab_presenter.h"

namespace tidewatch {

namespace {

void setVisible(const Pane& pane, bool visible) {
    if (auto* presenter = qobject_cast<TabPresenter*>(pane.presenter)) presenter->setVisible(visible);
}

}  // namespace

StatsPresenter::StatsPresenter(Content content)
    : counters_(content.counters),
      dashboard_(content.dashboard),
      claude_(content.claude),
      tabs_(std::move(content.tabs)),
      besideTabs_(std::move(content.besideTabs)),
      wallClock_(content.clock),
      breakAlert_(content.breakReminder),
      willShow_(content.broadcaster.observe<DashboardWillShow>([this](const auto&) { reloadAll(); })) {}

QList<Pane> StatsPresenter::panes() {
    QList<Pane> row{
        {.id = "tabs", .title = "", .view = viewUrl("Tidewatch.Shell", "TabsPane"), .presenter = this}};
    for (const auto& pane : besideTabs_) row.append(pane);
    return row;
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
    updateVisibleTab();
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
    for (const auto& tab : tabs_) setVisible(tab, appeared_ && tab.id == selected);
    for (const auto& pane : besideTabs_) setVisible(pane, appeared_);
}

}  // namespace tidewatch
