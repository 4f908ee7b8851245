#include "classification/app_info_resolver.h"

#include "core/identifiers.h"

namespace tidewatch {
namespace {

AppInfo builtInGames() {
    return {"Fathom · Juegos", AppIcon{AppIcon::Source::symbol, "gamecontroller.fill", "Juegos"}};
}

}  // namespace

const AppInfo& AppInfoResolver::info(const AppId& app) const {
    if (const auto known = known_.find(app); known != known_.end()) return known->second;
    return known_.emplace(app, lookUp(app)).first->second;
}

AppInfo AppInfoResolver::lookUp(const AppId& app) const {
    if (app.text() == gamesApplicationId) return builtInGames();
    const auto registered = applications_.info(app);
    if (!registered) return {app.text(), std::nullopt};
    AppInfo info{registered->name, std::nullopt};
    if (!registered->icon.empty()) info.icon = AppIcon{AppIcon::Source::desktop, registered->icon, ""};
    return info;
}

}  // namespace tidewatch
