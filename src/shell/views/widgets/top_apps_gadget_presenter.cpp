#include "shell/views/widgets/top_apps_gadget_presenter.h"

#include "analysis/views/tier_color.h"
#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

constexpr std::size_t maxApps = 4;

std::vector<GadgetApp> gadgetApps(const std::vector<AppEntry>& apps) {
    auto rows = appRows(apps);
    std::vector<GadgetApp> result;
    result.reserve(rows.size());
    for (std::size_t place = 0; place < rows.size(); ++place) {
        auto& row = rows[place];
        row.color = bucketColor(apps[place].tier);
        result.push_back(
            {.id = row.id, .app = row, .fraction = share(apps[place].seconds, apps.front().seconds)});
    }
    return result;
}

}  // namespace

TopAppsGadgetPresenter::TopAppsGadgetPresenter(WidgetHub& hub)
    : GadgetPresenter(WidgetKind::topApps, hub.changed), hub_(hub) {}

void TopAppsGadgetPresenter::update() {
    apps_.setRows(gadgetApps(hub_.topApps(maxApps)));
    change(this, hasApps_, apps_.rowCount() > 0, &TopAppsGadgetPresenter::hasAppsChanged);
}

}  // namespace tidewatch
