#include "shell/status_menu.h"

#include <fmt/format.h>

#include <array>
#include <utility>

#include "base/duration_format.h"
#include "core/idle_option.h"
#include "core/size_option.h"
#include "shell/project_menu.h"

namespace tidewatch {

namespace {

constexpr std::array dayStartHours = {0, 4, 5, 6, 7, 8};

MenuRow information(std::string title) {
    return {.title = std::move(title)};
}

MenuRow command(std::string title, std::function<void()> action,
                std::optional<char> keyEquivalent = std::nullopt) {
    return {.title = std::move(title), .keyEquivalent = keyEquivalent, .action = std::move(action)};
}

MenuRow choice(std::string title, bool checked, std::function<void()> action) {
    return {.title = std::move(title), .checked = checked, .action = std::move(action)};
}

MenuRow themeMenu(const StatusMenuSources& from) {
    MenuRow menu{.title = "Tema"};
    for (const auto& theme : from.themes.themes()) {
        menu.children.push_back(choice(theme.displayName, theme.id == from.theme.active().id,
                                       [&to = from.commands, id = theme.id] { to.switchTheme(id); }));
    }
    return menu;
}

MenuRow sizeMenu(const StatusMenuSources& from) {
    MenuRow menu{.title = "Tamaño"};
    const auto current = closestSizeOption(from.settings.sizeScale());
    for (const auto option : allSizeOptions()) {
        menu.children.push_back(choice(std::string(label(option)), option == current,
                                       [&to = from.commands, option] { to.switchSize(rawValue(option)); }));
    }
    return menu;
}

MenuRow idleMenu(const StatusMenuSources& from) {
    MenuRow menu{.title = "Idle"};
    const auto current = closestIdleOption(from.settings.idleThresholdSeconds());
    for (const auto option : allIdleOptions()) {
        menu.children.push_back(choice(std::string(label(option)), option == current,
                                       [&to = from.commands, option] { to.switchIdle(rawValue(option)); }));
    }
    return menu;
}

MenuRow dayStartMenu(const StatusMenuSources& from) {
    MenuRow menu{.title = "El día empieza"};
    for (const int hour : dayStartHours) {
        menu.children.push_back(choice(hour == 0 ? "Medianoche (00:00)" : fmt::format("{:02}:00", hour),
                                       hour == from.settings.dayStartHour(),
                                       [&to = from.commands, hour] { to.switchDayStart(hour); }));
    }
    return menu;
}

/// What the session keeps the program from noticing, if anything.
void appendInputCoverage(MenuRows& rows, platform::InputCoverage coverage) {
    using platform::InputCoverage;
    if (coverage == InputCoverage::nothing)
        rows.push_back(information("Sin detección de actividad: no se cuenta"));
    if (coverage == InputCoverage::someWindows) {
        rows.push_back(information("Wayland: solo se ven las ventanas X11"));
    }
}

/// The least uncategorised time that is worth a row.
constexpr Seconds tellingUncategorized{60};

void appendTiers(MenuRows& rows, const ProductivityScore& score) {
    rows.push_back(information("Productivo: " + formatShort(score.productiveSeconds)));
    rows.push_back(information("Neutral: " + formatShort(score.neutralSeconds)));
    rows.push_back(information("Distrayendo: " + formatShort(score.distractingSeconds)));
    if (score.uncategorizedSeconds >= tellingUncategorized) {
        rows.push_back(information("Sin categorizar: " + formatShort(score.uncategorizedSeconds)));
    }
}

}  // namespace

MenuRows buildStatusMenu(const StatusMenuSources& from) {
    auto& to = from.commands;
    const std::array today = {from.days.today()};
    const auto score = from.scorer.compute(today);
    MenuRows rows;
    rows.push_back(information("Hoy · " + score.displayString() + " productivo"));
    rows.push_back(MenuRow::separator());
    rows.push_back(information("Sesión: " + hms(from.engine.liveSeconds())));
    rows.push_back(information("Hoy: " + hms(from.engine.todaySeconds())));
    appendInputCoverage(rows, from.inputActivity.coverage());
    rows.push_back(MenuRow::separator());
    appendTiers(rows, score);
    rows.push_back(MenuRow::separator());
    rows.push_back(themeMenu(from));
    rows.push_back(sizeMenu(from));
    rows.push_back(idleMenu(from));
    rows.push_back(dayStartMenu(from));
    rows.push_back(projectMenu(from.projects, from.projectCommands, from.exportCommands));
    rows.push_back(command(
        from.settings.windowVisible() ? "Ocultar ventana" : "Mostrar ventana", [&to] { to.toggleVisible(); },
        'h'));
    rows.push_back(command("Reiniciar día", [&to] { to.resetToday(); }));
    rows.push_back(MenuRow::separator());
    rows.push_back(command(
        "Estadísticas…", [&to] { to.showStats(); }, 'e'));
    rows.push_back(command("Revelar archivo de datos", [&to] { to.revealData(); }));
    rows.push_back(command("Exportar día (CSV)…", [&exports = from.exportCommands] { exports.exportCSV(); }));
    rows.push_back(MenuRow::separator());
    rows.push_back(
        choice("Iniciar al arrancar", from.loginItem.isEnabled(), [&to] { to.toggleLoginItem(); }));
    rows.push_back(MenuRow::separator());
    rows.push_back(command(
        "Salir", [&to] { to.quit(); }, 'q'));
    return rows;
}

}  // namespace tidewatch
