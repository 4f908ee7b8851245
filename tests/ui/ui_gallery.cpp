// Every component of the windows, and every symbol.

#include "platform/fake/fake_clock.h"
#include "ui/backgrounds/wall_clock.h"
#include "ui/gallery.h"
#include "ui/symbols/symbol_table.h"
#include "ui/ui_scene.h"

namespace tidewatch {
namespace {

constexpr QSize componentsSize(1000, 680);
constexpr QSize symbolsSize(1000, 340);

constexpr auto components = R"(
Item {
    id: gallery
    property alias time: ground.time
    width: 1000; height: 680
    DashboardBackground { id: ground; anchors.fill: parent }
    Row {
        x: 24; y: 24; spacing: 20
        Card {
            width: 300; height: 632
            Column {
                width: parent.width; spacing: 14
                Heading { text: "Productividad" }
                Item {
                    width: 180; height: 180
                    DonutRing {
                        anchors.fill: parent; fraction: 0.72; thickness: 16
                        color: Style.palette.tierProductive; track: Style.palette.stroke
                    }
                    Text {
                        anchors.centerIn: parent; text: "72%"
                        font: Style.mono(34, Style.Light); color: Style.palette.primaryText
                    }
                }
                Text { text: "+12% vs ayer"; font: Style.sans(13, Style.Medium); color: Style.legibleOn(Style.palette.textGround, Style.palette.tierProductive) }
                Text { text: "-8% vs prom 7d"; font: Style.sans(13, Style.Medium); color: Style.legibleOn(Style.palette.textGround, Style.palette.tierDistracting) }
                Text { text: "Cuerpo de texto, primario"; font: Style.sans(14, Style.Regular); color: Style.palette.primaryText }
                Text { text: "Texto secundario"; font: Style.sans(13, Style.Regular); color: Style.palette.secondaryText }
                Text { text: "strongMute"; font: Style.sans(13, Style.Regular); color: Style.palette.strongMute }
                Text { text: "mute"; font: Style.sans(13, Style.Regular); color: Style.palette.mute }
                Text { text: "muteSoft"; font: Style.sans(13, Style.Regular); color: Style.palette.muteSoft }
                Meter { width: parent.width; fraction: 0.64 }
                Meter { width: parent.width; fraction: 0.01; color: Style.palette.tierNeutral }
                Meter { width: parent.width; fraction: 3; color: Style.palette.tierDistracting }
                Meter { width: parent.width; fraction: 0; color: Style.palette.amber }
            }
        }
        Card {
            width: 316; height: 632
            Column {
                width: parent.width; spacing: 16
                Heading { text: "Mandos" }
                Row {
                    spacing: 6
                    IconButton { symbol: "chevron.left"; accessibleName: "a" }
                    Text { anchors.verticalCenter: parent.verticalCenter; text: "vie 21 nov"; font: Style.sans(14, Style.Medium); color: Style.palette.primaryText }
                    IconButton { symbol: "chevron.right"; accessibleName: "b"; enabled: false }
                    LinkButton { text: "hoy" }
                    LinkButton { text: "no"; enabled: false }
                }
                TextButton { text: "Generar reporte PDF del mes…"; symbol: "doc.richtext" }
                TextButton { objectName: "primary"; text: "Listo · ya me paré"; symbol: "checkmark.circle.fill"; primary: true }
                Row { spacing: 10
                    TextButton { text: "Apagado"; enabled: false }
                    TextButton { text: "Apagado"; primary: true; enabled: false }
                }
                Row { spacing: 8
                    Chip { text: "Productivo"; checked: true; color: Style.palette.tierProductive }
                    Chip { text: "Neutral"; color: Style.palette.tierNeutral }
                }
                Row { spacing: 8
                    Chip { text: "Distrayendo"; checked: true; color: Style.palette.tierDistracting }
                    Chip { text: "Sin categorizar"; checked: true; color: Style.palette.tierOther }
                }
                SegmentedPicker { labels: ["Semana", "Mes", "Todo"]; currentIndex: 1; accessibleName: "Rango" }
                Row { spacing: 16
                    StepperButtons { accessibleName: "Horas por día"; valueText: "8.0h" }
                    StepperButtons { accessibleName: "Horas por día"; valueText: "8.0h"; canIncrease: false }
                    Text { anchors.verticalCenter: parent.verticalCenter; text: "8.0h"; font: Style.mono(14, Style.Regular); color: Style.palette.primaryText }
                }
                LabeledSwitch { width: parent.width; text: "Notificaciones de metas"; checked: true }
                LabeledSwitch { width: parent.width; text: "Notificaciones de metas" }
                SearchField { width: parent.width; placeholder: "buscar" }
                SearchField { width: parent.width; placeholder: "buscar"; text: "Visual Studio Code" }
            }
        }
        Card {
            width: 276; height: 632
            Column {
                width: parent.width; spacing: 20
                Heading { text: "Con el teclado" }
                Row { spacing: 16
                    IconButton { symbol: "chevron.left"; accessibleName: "a"; FocusRing { shown: true } }
                    TextButton { text: "Exportar"; FocusRing { shown: true; controlRadius: parent.cornerRadius } }
                    Chip { text: "Neutral"; checked: true; color: Style.palette.tierNeutral; FocusRing { shown: true; controlRadius: parent.cornerRadius } }
                }
                TextButton { text: "Listo"; primary: true; FocusRing { shown: true; controlRadius: parent.cornerRadius } }
                Row { spacing: 10
                    AppIconView { iconName: "no-such-icon"; side: 24; color: Style.palette.mute }
                    AppIconView { symbolName: "gamecontroller.fill"; side: 24; color: Style.palette.mute }
                    AppIconView { iconName: "/usr/share/pixmaps/debian-logo.png"; side: 24; color: Style.palette.mute }
                }
                ScrollPane {
                    objectName: "pane"
                    width: parent.width; height: 220; spacing: 8
                    Repeater {
                        model: 20
                        Text { required property int index; text: "Fila " + index; font: Style.sans(14, Style.Regular); color: Style.palette.primaryText }
                    }
                }
                Card {
                    width: parent.width; color: Style.palette.cardSubtle
                    Column {
                        spacing: 6
                        Row { spacing: 6
                            Symbol { name: "bolt.fill"; side: 14; color: Style.palette.strongMute }
                            Heading { text: "Hora pico" }
                        }
                        Text { text: "10:00"; font: Style.mono(26, Style.Light); color: Style.palette.primaryText }
                        Text { text: "prom. 11:00"; font: Style.sans(12, Style.Regular); color: Style.palette.strongMute }
                    }
                }
            }
        }
    }
}
)";

constexpr auto symbols = R"(
Rectangle {
    id: sheet
    property var names: []
    width: 1000; height: 340
    color: Style.palette.bg
    Grid {
        x: 16; y: 16; columns: 8; spacing: 8
        Repeater {
            model: sheet.names
            Column {
                id: cell
                required property string modelData
                width: 114
                Row {
                    spacing: 4
                    Symbol { name: cell.modelData; side: 16; color: Style.palette.primaryText }
                    Symbol { name: cell.modelData; side: 24; color: Style.palette.primaryText }
                    Symbol { name: cell.modelData; side: 56; color: Style.palette.tierProductive }
                }
                Text { width: 112; text: cell.modelData; elide: Text.ElideMiddle; font: Style.sans(10, Style.Regular); color: Style.palette.strongMute }
            }
        }
    }
}
)";

}  // namespace

void paint(Gallery& gallery) {
    UiScene scene;
    platform::FakeClock clock{Instant(std::chrono::seconds(1'764'000'000))};
    WallClock time(clock);
    gallery.paintThemes(scene, [&](const QString& theme) {
        scene.show(components, componentsSize);
        scene.view_->setProperty("time", QVariant::fromValue(&time));
        gallery.save(scene.picture(), theme);
    });
    scene.theme_.switchTo("ochre");
    scene.show(symbols, symbolsSize);
    scene.view_->setProperty("names", symbolNames());
    gallery.save(scene.picture(), "symbols");
}

}  // namespace tidewatch
