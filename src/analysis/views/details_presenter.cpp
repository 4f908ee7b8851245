#include "analysis/views/details_presenter.h"

#include <utility>

#include "analysis/views/app_row.h"
#include "analysis/views/tier_color.h"
#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

AppDetails details(const AppEntry& app, Seconds total) {
    const auto icon = iconNames(app.icon);
    AppDetails row{.id = text(app.app.text()),
                   .iconName = icon.desktop,
                   .symbolName = icon.symbol,
                   .name = nameText(app.name),
                   .category = text(rawValue(app.category)),
                   .tier = text(displayName(app.tier)),
                   .color = tierColor(app.tier),
                   .time = timeText(app.seconds),
                   .share = shareText(app.seconds, total),
                   .fraction = share(app.seconds, total)};
    row.accessibleText =
        QString("%1, %2, %3, %4, %5").arg(row.name, row.tier, row.category, row.time, row.share);
    return row;
}

}  // namespace

DetailsPresenter::DetailsPresenter(DashboardModel& model, OpenMenu openMenu)
    : DashboardTabPresenter(
          model,
          "Cuando lleves unos segundos trabajando, aquí verás cada aplicación con su tiempo y su categoría."),
      openMenu_(std::move(openMenu)),
      filtersChanged_(model.changed.connect([this](DashboardModel::Field field) {
          if (field == DashboardModel::Field::searchText) Q_EMIT searchTextChanged();
          if (field == DashboardModel::Field::searchText || field == DashboardModel::Field::tierFilter) {
              updateIfVisible();
          }
      })) {
    updateTiers();
}

QString DetailsPresenter::searchText() const {
    return text(model().searchText());
}

void DetailsPresenter::setSearchText(const QString& text) {
    if (text != searchText()) model().setSearchText(text.toStdString());
}

void DetailsPresenter::toggleTier(const QString& id) {
    if (const auto tier = tierFromRaw(id.toStdString())) model().toggleTier(*tier);
}

void DetailsPresenter::openMenu(const QString& id, QPointF at) {
    openMenu_(AppId(id.toStdString()), at);
}

void DetailsPresenter::update() {
    updateTiers();
    updateRows();
}

void DetailsPresenter::updateTiers() {
    std::vector<TierSwitch> rows;
    for (const auto tier : allTiers()) {
        rows.push_back({.id = text(rawValue(tier)),
                        .title = text(displayName(tier)),
                        .color = tierColor(tier),
                        .on = model().tierFilter().contains(tier)});
    }
    tiers_.setRows(rows);
}

void DetailsPresenter::updateRows() {
    const auto total = model().score().totalActive();
    std::vector<AppDetails> rows;
    for (const auto& app : model().filteredApps()) rows.push_back(details(app, total));
    rows_.setRows(rows);
    Q_EMIT rowsChanged();
}

}  // namespace tidewatch
