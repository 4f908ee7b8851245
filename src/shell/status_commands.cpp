#include "shell/status_commands.h"

#include <utility>

#include "shell/reveal_file.h"

namespace tidewatch {

StatusCommands::StatusCommands(Dependencies dependencies) : dependencies_(std::move(dependencies)) {}

void StatusCommands::switchTheme(std::string_view id) {
    dependencies_.theme.switchTo(id);
}

void StatusCommands::switchSize(double scale) {
    dependencies_.settings.setSizeScale(scale);
    dependencies_.broadcaster.post(SizeChanged{});
}

void StatusCommands::switchIdle(std::int64_t seconds) {
    dependencies_.settings.setIdleThresholdSeconds(seconds);
    dependencies_.refreshStatusBarTitle();
}

void StatusCommands::switchDayStart(int hour) {
    dependencies_.settings.setDayStartHour(hour);
    dependencies_.refreshStatusBarTitle();
    dependencies_.refreshStatusBarTitle();
}

void StatusCommands::toggleVisible() {
    dependencies_.toggleVisible();
    dependencies_.refreshStatusBarTitle();
}

void StatusCommands::resetToday() {
    dependencies_.engine.resetToday();
}

void StatusCommands::showStats() {
    writeDay();
    dependencies_.statistics.showWindow();
}

void StatusCommands::revealData() {
    writeDay();
    revealFile(dependencies_.desktop, dependencies_.dialogs, dependencies_.days.dataFilePath(),
               "No se pudo mostrar el archivo de datos");
}

void StatusCommands::toggleLoginItem() {
    const auto changed = dependencies_.loginItem.isEnabled() ? dependencies_.loginItem.unregisterItem()
                                                             : dependencies_.loginItem.registerItem();
    if (changed) {
        dependencies_.refreshStatusBarTitle();
    } else {
        dependencies_.dialogs.warn("No se pudo cambiar el ajuste de inicio", changed.error().message);
    }
}

void StatusCommands::quit() {
    dependencies_.terminate();
}

void StatusCommands::writeDay() {
    dependencies_.days.set(dependencies_.engine.todaySeconds(), dependencies_.days.today());
    dependencies_.days.flush();
}

}  // namespace tidewatch
