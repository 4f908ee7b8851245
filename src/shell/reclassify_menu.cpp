#include "shell/reclassify_menu.h"

#include <string>

namespace tidewatch {

namespace {

MenuRow categoryMenu(const AppId& app, CategoryStore& categories, DashboardModel& model) {
    MenuRow menu{.title = "Categoría"};
    const auto present = categories.category(app);
    for (const auto category : allCategories()) {
        menu.children.push_back({.title = std::string(rawValue(category)),
                                 .checked = category == present,
                                 .action = [app, category, &categories, &model] {
                                     categories.setCategory(category, app);
                                     model.reload();
                                 }});
    }
    return menu;
}

MenuRow tierMenu(Category category, CategoryStore& categories, DashboardModel& model) {
    MenuRow menu{.title = "Tier de " + std::string(rawValue(category))};
    const auto present = categories.tier(category);
    for (const auto tier : allTiers()) {
        menu.children.push_back({.title = std::string(displayName(tier)),
                                 .checked = tier == present,
                                 .action = [tier, category, &categories, &model] {
                                     categories.setTier(tier, category);
                                     model.reload();
                                 }});
    }
    return menu;
}

}  // namespace

MenuRows reclassifyMenu(const AppId& app, CategoryStore& categories, DashboardModel& model) {
    const auto category = categories.category(app);
    return {
        categoryMenu(app, categories, model),
        tierMenu(category, categories, model),
        {.title = "Restablecer default",
         .action =
             [app, category, &categories, &model] {
                 categories.clearCategoryOverride(app);
                 categories.clearTierOverride(category);
                 model.reload();
             }},
    };
}

}  // namespace tidewatch
