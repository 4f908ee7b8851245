#include "shell/themes/theme_controller.h"

namespace tidewatch {

ThemeController::ThemeController(const ThemeRegistry& registry, Settings& settings,
                                 const Broadcaster& broadcaster)
    : registry_(registry),
      settings_(settings),
      broadcaster_(broadcaster),
      active_(&registry.theme(settings.activeThemeId())) {}

void ThemeController::switchTo(std::string_view id) {
    active_ = &registry_.theme(id);
    changed.emit();
    settings_.setActiveThemeId(id);
    broadcaster_.post(ThemeChanged{});
}

}  // namespace tidewatch
