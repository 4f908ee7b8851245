#include "analysis/views/timesheet_presenter.h"

#include <fmt/format.h>

#include <algorithm>

#include "analysis/views/tier_color.h"
#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

// Points.
constexpr double fullHeight = 20;
constexpr double minBlockHeight = 2;
constexpr double barOpacity = 0.85;

QString clockText(int hour, int minute) {
    const int onClock = hour % 12 == 0 ? 12 : hour % 12;
    return text(fmt::format("{}:{:02}{}", onClock, minute, hour < 12 ? "am" : "pm"));
}

BucketCell cell(const BucketSummary& bucket) {
    if (bucket.seconds < Seconds(1)) return {};
    auto color = bucketColor(bucket.dominantTier());
    // What has no tier is faint enough by itself.
    if (bucket.dominantTier() != Tier::uncategorized) color.setAlphaF(static_cast<float>(barOpacity));
    const QStringList accessibleText{clockText(bucket.hour, bucket.minute), timeText(bucket.seconds),
                                     text(displayName(bucket.dominantTier()))};
    return {true, std::max(fullHeight * bucket.fillRatio(), minBlockHeight), color,
            accessibleText.join(", ")};
}

QList<NamedTime> summary(const HourGroup& group) {
    return {
        {"Total", timeText(group.totalSeconds), Qt::transparent},
        {"Productivo", timeText(group.productive), tierColor(Tier::productive)},
        {"Neutral", timeText(group.neutral), tierColor(Tier::neutral)},
        {"Distrayendo", timeText(group.distracting), tierColor(Tier::distracting)},
    };
}

QList<AppRow> activities(const HourGroup& group) {
    QList<AppRow> rows;
    for (const auto& activity : group.topActivities) {
        const auto icon = iconNames(activity.icon);
        rows.append({.id = text(activity.app.text()),
                     .iconName = icon.desktop,
                     .symbolName = icon.symbol,
                     .name = nameText(activity.name),
                     .time = timeText(activity.seconds),
                     .color = tierColor(activity.tier),
                     .accessibleText = nameText(activity.name) + ", " + timeText(activity.seconds)});
    }
    return rows;
}

QList<NamedTime> categories(const HourGroup& group) {
    QList<NamedTime> rows;
    for (const auto& top : group.topCategories) {
        rows.append({text(rawValue(top.category)), timeText(top.seconds), tierColor(top.tier)});
    }
    return rows;
}

HourSheet sheet(const HourGroup& group) {
    HourSheet row{.id = QString::number(group.hour), .hour = clockText(group.hour, 0)};
    for (const auto& bucket : group.buckets) row.buckets.append(cell(bucket));
    row.summary = summary(group);
    row.activities = activities(group);
    row.categories = categories(group);
    QStringList accessibleText{row.hour};
    for (const auto& line : row.summary) accessibleText.append(line.name + " " + line.time);
    for (const auto& activity : row.activities) accessibleText.append(activity.name + " " + activity.time);
    row.accessibleText = accessibleText.join(", ");
    return row;
}

}  // namespace

TimesheetPresenter::TimesheetPresenter(DashboardModel& model)
    : DashboardTabPresenter(
          model,
          "Cuando lleves unos segundos trabajando, aquí verás tu día hora a hora, de diez en diez minutos.") {
}

void TimesheetPresenter::update() {
    std::vector<HourSheet> rows;
    for (const auto& group : model().hourGroups()) rows.push_back(sheet(group));
    hours_.setRows(rows);
    Q_EMIT hoursChanged();
}

}  // namespace tidewatch
