#include "shell/status_commands.h"

#include <utility>

#include "shell/reveal_file.h"

namespace tidewatch {

StatusCommands::StatusCommands(Targets targets) : to_(std::move(targets)) {}

void StatusCommands::switchTheme(std::string_view id) {
    to_.theme.switchTo(id);
}

void StatusCommands::switchSize(double scale) {
    to_.services.settings.setSizeScale(scale);
    to_.services.broadcaster.post(SizeChanged{});
}

void StatusCommands::switchIdle(std::int64_t seconds) {
    to_.services.settings.setIdleThresholdSeconds(seconds);
    to_.refreshStatusBarTitle();
}

void StatusCommands::switchDayStart(int hour) {
    to_.services.settings.setDayStartHour(hour);
    to_.refreshStatusBarTitle();
    to_.refreshStatusBarTitle();
}

void StatusCommands::toggleVisible() {
    const bool wasVisible = to_.panel.isVisible();
    if (wasVisible) {
        to_.panel.orderOut();
    } else {
        to_.panel.orderFrontRegardless();
    }
    to_.services.settings.setWindowVisible(!wasVisible);
    to_.refreshStatusBarTitle();
}

void StatusCommands::resetToday() {
    to_.services.engine.resetToday();
}

void StatusCommands::showStats() {
    writeDay();
    to_.statistics.showWindow();
}

void StatusCommands::revealData() {
    writeDay();
    revealFile(to_.desktop, to_.dialogs, to_.services.days.dataFilePath(),
               "No se pudo mostrar el archivo de datos");
}

void StatusCommands::toggleLoginItem() {
    const auto changed =
        to_.loginItem.isEnabled() ? to_.loginItem.unregisterItem() : to_.loginItem.registerItem();
    if (changed) {
        to_.refreshStatusBarTitle();
    } else {
        to_.dialogs.warn("No se pudo cambiar el ajuste de inicio", changed.error().message);
    }
}

void StatusCommands::quit() {
    to_.terminate();
}

void StatusCommands::writeDay() {
    to_.services.days.set(to_.services.engine.todaySeconds(), to_.services.days.today());
    to_.services.days.flush();
}

}  // namespace tidewatch
