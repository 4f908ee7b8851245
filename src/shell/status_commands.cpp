#include "shell/status_commands.h"

#include <utility>

#include "shell/reveal_file.h"

namespace tidewatch {

StatusCommands::StatusCommands(Targets targets) : to_(std::move(targets)) {}

void StatusCommands::switchTheme(std::string_view id) {
    to_.theme.switchTo(id);
}

void StatusCommands::switchSize(double scale) {
    to_.settings.setSizeScale(scale);
    to_.broadcaster.post(SizeChanged{});
}

void StatusCommands::switchIdle(std::int64_t seconds) {
    to_.settings.setIdleThresholdSeconds(seconds);
    to_.refreshStatusBarTitle();
}

void StatusCommands::switchDayStart(int hour) {
    to_.settings.setDayStartHour(hour);
    to_.refreshStatusBarTitle();
    to_.refreshStatusBarTitle();
}

void StatusCommands::toggleVisible() {
    to_.toggleVisible();
    to_.refreshStatusBarTitle();
}

void StatusCommands::resetToday() {
    to_.engine.resetToday();
}

void StatusCommands::showStats() {
    writeDay();
    to_.statistics.showWindow();
}

void StatusCommands::revealData() {
    writeDay();
    revealFile(to_.desktop, to_.dialogs, to_.days.dataFilePath(), "No se pudo mostrar el archivo de datos");
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
    to_.days.set(to_.engine.todaySeconds(), to_.days.today());
    to_.days.flush();
}

}  // namespace tidewatch
