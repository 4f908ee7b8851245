#include "shell/widgets/widget_kind.h"

#include <array>

#include "classification/enum_table.h"

namespace tidewatch {
namespace {

struct WidgetRow {
    WidgetKind value;
    std::string_view raw;
    std::string_view title;
    std::string_view menuIcon;
    PanelSize defaultSize;
    int cascadeIndex;
};

constexpr auto widgetRows = enumTable(std::array{
    WidgetRow{WidgetKind::productivity, "productivity", "Productividad", "chart.pie.fill", {214, 150}, 0},
    WidgetRow{WidgetKind::system, "system", "Sistema", "cpu", {214, 176}, 1},
    WidgetRow{WidgetKind::streak, "streak", "Racha & Análisis", "flame.fill", {226, 138}, 2},
    WidgetRow{WidgetKind::goals, "goals", "Metas & Estrellas", "target", {214, 152}, 3},
    WidgetRow{WidgetKind::speed, "speed", "Test de Velocidad", "speedometer", {196, 196}, 4},
    WidgetRow{WidgetKind::project, "project", "Proyecto Activo", "folder.fill", {206, 92}, 5},
    WidgetRow{WidgetKind::topApps, "topApps", "Top Apps", "square.grid.2x2.fill", {214, 176}, 6},
    WidgetRow{WidgetKind::arcade, "arcade", "Mini-Arcade", "gamecontroller.fill", {214, 374}, 7},
});

constexpr auto widgetKinds = valuesOf(widgetRows);

}  // namespace

std::span<const WidgetKind> allWidgetKinds() {
    return widgetKinds;
}

std::string_view rawValue(WidgetKind kind) {
    return rowOf(widgetRows, kind).raw;
}

std::string_view title(WidgetKind kind) {
    return rowOf(widgetRows, kind).title;
}

std::string_view menuIcon(WidgetKind kind) {
    return rowOf(widgetRows, kind).menuIcon;
}

PanelSize defaultSize(WidgetKind kind) {
    return rowOf(widgetRows, kind).defaultSize;
}

int cascadeIndex(WidgetKind kind) {
    return rowOf(widgetRows, kind).cascadeIndex;
}

std::optional<WidgetKind> widgetKind(std::string_view raw) {
    return valueFromRaw(widgetRows, raw);
}

}  // namespace tidewatch
