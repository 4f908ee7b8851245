#include "shell/windows/menu_style.h"

#include <QColor>

namespace tidewatch {

namespace {

/// The opaque result of `colour` over `ground`: menus are opaque.
QColor over(const Color& ground, const Color& colour) {
    const auto mix = [&](double below, double above) {
        return static_cast<float>(below * (1 - colour.alpha) + above * colour.alpha);
    };
    return QColor::fromRgbF(mix(ground.red, colour.red), mix(ground.green, colour.green),
                            mix(ground.blue, colour.blue));
}

}  // namespace

QString menuStyleSheet(const DashboardStyle& style) {
    const auto shade = [&](const Color& colour) { return over(style.bg, colour).name(); };
    return QStringLiteral(
               "QMenu { background: %1; border: 1px solid %2; padding: 5px; font: 13px Inter; }"
               "QMenu::item { color: %3; padding: 5px 22px 5px 26px; border-radius: 5px; margin: 0 1px; }"
               "QMenu::item:selected { background: %4; }"
               "QMenu::item:disabled { color: %5; background: transparent; }"
               "QMenu::separator { height: 1px; background: %2; margin: 5px 10px; }"
               "QMenu::indicator { width: 12px; height: 12px; left: 8px; }"
               "QMenu::right-arrow { width: 8px; height: 8px; right: 8px; }")
        .arg(shade(style.card), shade(style.stroke), shade(style.primaryText), shade(style.stroke),
             shade(style.mute));
}

MenuInk menuInk(const DashboardStyle& style) {
    return {.symbol = over(style.bg, style.primaryText), .ground = over(style.bg, style.card)};
}

QString hintStyleSheet(const DashboardStyle& style) {
    const auto shade = [&](const Color& colour) { return over(style.bg, colour).name(); };
    return QStringLiteral(
               "QLabel { background: %1; border: 1px solid %2; color: %3; padding: 10px; font: 13px Inter; }")
        .arg(shade(style.card), shade(style.stroke), shade(style.primaryText));
}

QPalette dialogPalette(const DashboardStyle& style) {
    const auto shade = [&](const Color& colour) { return over(style.bg, colour); };
    const auto text = shade(style.primaryText);
    const auto disabled = shade(style.mute);
    QPalette palette(shade(style.card), shade(style.bg));
    palette.setColor(QPalette::Base, shade(style.cardSubtle));
    palette.setColor(QPalette::AlternateBase, shade(style.card));
    palette.setColor(QPalette::ToolTipBase, shade(style.card));
    palette.setColor(QPalette::PlaceholderText, disabled);
    palette.setColor(QPalette::Highlight, shade(style.strongMute));
    palette.setColor(QPalette::HighlightedText, shade(style.bg));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                            QPalette::BrightText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, disabled);
    }
    return palette;
}

QString dialogStyleSheet(const DashboardStyle& style) {
    const auto shade = [&](const Color& colour) { return over(style.bg, colour).name(); };
    return QStringLiteral(
               "QDialog { background: %1; }"
               "QLabel { color: %2; font: 13px Inter; }"
               "QLabel#title { font: 600 16px Inter; }"
               "QLineEdit { background: %3; color: %2; border: 1px solid %4; border-radius: 6px; padding: "
               "6px 8px;"
               " font: 13px Inter; selection-background-color: %5; selection-color: %1; }"
               "QLineEdit:focus { border-color: %5; }"
               "QPushButton { background: %3; color: %2; border: 1px solid %4; border-radius: 6px;"
               " padding: 6px 16px; font: 13px Inter; }"
               "QPushButton:default { background: %5; color: %1; border-color: %5; }"
               "QPushButton:focus { border-color: %2; }")
        .arg(shade(style.bg), shade(style.primaryText), shade(style.cardSubtle), shade(style.stroke),
             shade(style.strongMute));
}

}  // namespace tidewatch
