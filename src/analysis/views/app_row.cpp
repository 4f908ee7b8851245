#include "analysis/views/app_row.h"

#include "analysis/views/tier_color.h"
#include "ui/texts/display_text.h"

namespace tidewatch {

IconNames iconNames(const std::optional<AppIcon>& icon) {
    if (!icon) return {};
    const auto name = text(icon->name);
    return icon->source == AppIcon::Source::desktop ? IconNames{name, {}} : IconNames{{}, name};
}

std::vector<AppRow> appRows(const std::vector<AppEntry>& apps) {
    std::vector<AppRow> rows;
    rows.reserve(apps.size());
    for (const auto& app : apps) {
        const auto icon = iconNames(app.icon);
        AppRow row{.id = text(app.app.text()),
                   .iconName = icon.desktop,
                   .symbolName = icon.symbol,
                   .name = nameText(app.name),
                   .time = timeText(app.seconds),
                   .color = tierColor(app.tier)};
        row.accessibleText = row.name + ", " + row.time;
        rows.push_back(std::move(row));
    }
    return rows;
}

}  // namespace tidewatch
