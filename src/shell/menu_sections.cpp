#include "shell/menu_sections.h"

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

MenuRow themeMenu(const ThemeRegistry& themes, const ThemeController& active, StatusCommands& commands) {
    MenuRow menu{.title = "Tema"};
    for (const auto& theme : themes.themes()) {
        menu.children.push_back(choice(theme.displayName, theme.id == active.active().id,
                                       [&to = commands, id = theme.id] { to.switchTheme(id); }));
    }
    return menu;
}

MenuRow sizeMenu(const Settings& settings, StatusCommands& commands) {
    MenuRow menu{.title = "Tamaño"};
    const auto current = closestSizeOption(settings.sizeScale());
    for (const auto option : allSizeOptions()) {
        menu.children.push_back(choice(std::string(label(option)), option == current,
                                       [&to = commands, option] { to.switchSize(rawValue(option)); }));
    }
    return menu;
}

MenuRow idleMenu(const Settings& settings, StatusCommands& commands) {
    MenuRow menu{.title = "Idle"};
    const auto current = closestIdleOption(settings.idleThresholdSeconds());
    for (const auto option : allIdleOptions()) {
        menu.children.push_back(choice(std::string(label(option)), option == current,
                                       [&to = commands, option] { to.switchIdle(rawValue(option)); }));
    }
    return menu;
}

MenuRow dayStartMenu(const Settings& settings, StatusCommands& commands) {
    MenuRow menu{.title = "El día empieza"};
    for (const int hour : dayStartHours) {
        menu.children.push_back(choice(hour == 0 ? "Medianoche (00:00)" : fmt::format("{:02}:00", hour),
                                       hour == settings.dayStartHour(),
                                       [&to = commands, hour] { to.switchDayStart(hour); }));
    }
    return menu;
}

/// What the session prevents the program from seeing, if anything.
void appendInputCoverage(MenuRows& rows, platform::InputCoverage coverage) {
    using platform::InputCoverage;
    if (coverage == InputCoverage::nothing)
        rows.push_back(information("Sin detección de actividad: no se cuenta"));
    if (coverage == InputCoverage::someWindows) {
        rows.push_back(information("Wayland: solo se ven las ventanas X11"));
    }
}

/// The minimum uncategorised time that is shown.
constexpr Seconds significantUncategorized{60};

ProductivityScore scoreOfToday(const DailyStore& days, const ProductivityScorer& scorer) {
    const std::array today = {days.today()};
    return scorer.compute(today);
}

void appendTiers(MenuRows& rows, const ProductivityScore& score) {
    rows.push_back(information("Productivo: " + formatShort(score.productiveSeconds)));
    rows.push_back(information("Neutral: " + formatShort(score.neutralSeconds)));
    rows.push_back(information("Distrayendo: " + formatShort(score.distractingSeconds)));
    if (score.uncategorizedSeconds >= significantUncategorized) {
        rows.push_back(information("Sin categorizar: " + formatShort(score.uncategorizedSeconds)));
    }
}

}  // namespace

MenuSection scoreSection(const DailyStore& days, const ProductivityScorer& scorer) {
    return [&](MenuRows& rows) {
        rows.push_back(information("Hoy · " + scoreOfToday(days, scorer).displayString() + " productivo"));
    };
}

MenuSection countingSection(const TimerEngine& engine, const platform::InputActivity& inputActivity) {
    return [&](MenuRows& rows) {
        rows.push_back(information("Sesión: " + hms(engine.liveSeconds())));
        rows.push_back(information("Hoy: " + hms(engine.todaySeconds())));
        appendInputCoverage(rows, inputActivity.coverage());
    };
}

MenuSection tierSection(const DailyStore& days, const ProductivityScorer& scorer) {
    return [&](MenuRows& rows) { appendTiers(rows, scoreOfToday(days, scorer)); };
}

MenuSection appearanceSection(const ThemeRegistry& themes, const ThemeController& theme,
                              const Settings& settings, StatusCommands& commands) {
    return [&](MenuRows& rows) {
        rows.push_back(themeMenu(themes, theme, commands));
        rows.push_back(sizeMenu(settings, commands));
    };
}

MenuSection countingRuleSection(const Settings& settings, StatusCommands& commands) {
    return [&](MenuRows& rows) {
        rows.push_back(idleMenu(settings, commands));
        rows.push_back(dayStartMenu(settings, commands));
    };
}

MenuSection projectSection(const ProjectStore& projects, ProjectCommands& commands, ExportCommands& exports) {
    return [&](MenuRows& rows) { rows.push_back(projectMenu(projects, commands, exports)); };
}

MenuSection widgetSection(std::function<WidgetManager&()> manager) {
    return [manager = std::move(manager)](MenuRows& rows) {
        MenuRow menu{.title = "Widgets de escritorio"};
        for (const auto kind : allWidgetKinds()) {
            auto row = choice(std::string(title(kind)), manager().isVisible(kind),
                              [manager, kind] { manager().toggle(kind); });
            row.symbol = menuIcon(kind);
            menu.children.push_back(std::move(row));
        }
        rows.push_back(std::move(menu));
    };
}

MenuSection clockSection(const Settings& settings, StatusCommands& commands) {
    return [&](MenuRows& rows) {
        rows.push_back(command(
            settings.windowVisible() ? "Ocultar ventana" : "Mostrar ventana",
            [&to = commands] { to.toggleVisible(); }, 'h'));
        rows.push_back(command("Reiniciar día", [&to = commands] { to.resetToday(); }));
    };
}

MenuSection recordSection(StatusCommands& commands, ExportCommands& exports) {
    return [&](MenuRows& rows) {
        rows.push_back(command(
            "Estadísticas…", [&to = commands] { to.showStats(); }, 'e'));
        rows.push_back(command("Revelar archivo de datos", [&to = commands] { to.revealData(); }));
        rows.push_back(command("Exportar día (CSV)…", [&to = exports] { to.exportCSV(); }));
    };
}

MenuSection loginSection(const platform::LoginItem& loginItem, StatusCommands& commands) {
    return [&](MenuRows& rows) {
        rows.push_back(
            choice("Iniciar al arrancar", loginItem.isEnabled(), [&to = commands] { to.toggleLoginItem(); }));
    };
}

MenuSection endSection(StatusCommands& commands) {
    return [&](MenuRows& rows) {
        rows.push_back(command(
            "Salir", [&to = commands] { to.quit(); }, 'q'));
    };
}

}  // namespace tidewatch
