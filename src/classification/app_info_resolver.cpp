#include "classification/app_info_resolver.h"

#include <utility>

#include "core/identifiers.h"

namespace tidewatch {
namespace {

AppInfo builtInGames() {
    return {"Fathom · Juegos", AppIcon{AppIcon::Source::symbol, "gamecontroller.fill", "Juegos"}};
}

}  // namespace

const AppInfo& AppInfoResolver::info(const AppId& app) const {
    const auto [answer, isNew] = answers_.try_emplace(app);
    auto& [info, unknownAt] = answer->second;
    if (isNew || (unknownAt && *unknownAt != workspace_.registryRevision())) answer->second = lookUp(app);
    return info;
}

AppInfoResolver::Answer AppInfoResolver::lookUp(const AppId& app) const {
    if (app.text() == gamesApplicationId) return {builtInGames(), std::nullopt};
    // Before the question: what changes in between is then asked for again.
    const auto revision = workspace_.registryRevision();
    const auto registered = workspace_.applicationInfo(app);
    if (!registered) return {{app.text(), std::nullopt}, revision};
    AppInfo info{registered->name, std::nullopt};
    if (!registered->icon.empty()) info.icon = AppIcon{AppIcon::Source::desktop, registered->icon, ""};
    return {std::move(info), std::nullopt};
}

}  // namespace tidewatch
