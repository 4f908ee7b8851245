#include "shell/windows/menu_view.h"

#include <QIcon>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>
#include <array>

#include "shell/windows/elided_text.h"
#include "shell/windows/menu_style.h"
#include "ui/texts/display_text.h"

namespace tidewatch {

namespace {

QKeySequence shortcut(char keyEquivalent) {
    return QKeySequence(Qt::CTRL |
                        static_cast<Qt::Key>(QChar::fromLatin1(keyEquivalent).toUpper().unicode()));
}

/// The widest title that a menu has room for, in pixels.
constexpr double titleWidth = 320;

/// A title as the menu wants it: there is something to see of it, and an ampersand that is meant is written
/// twice.
QString rowTitle(const std::string& text, const QFont& font) {
    return elidedLine(visibleName(text), font, titleWidth).replace('&', "&&");
}

/// A round dot of one colour, with a check mark on it where the row is checked: the icon takes the place that
/// the menu's own mark would have.
QIcon swatch(const RgbColor& color, bool checked) {
    constexpr double side = 48;
    QPixmap dot(static_cast<int>(side), static_cast<int>(side));
    dot.fill(Qt::transparent);
    QPainter painter(&dot);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(color.red, color.green, color.blue));
    const double inset = side / (checked ? 24 : 6);
    painter.drawEllipse(QRectF(0, 0, side, side).adjusted(inset, inset, -inset, -inset));
    if (checked) {
        painter.setPen(QPen(QColor(0x12, 0x12, 0x12), side / 9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const std::array mark = {QPointF(0.29, 0.52) * side, QPointF(0.44, 0.67) * side,
                                 QPointF(0.72, 0.34) * side};
        painter.drawPolyline(mark.data(), static_cast<int>(mark.size()));
    }
    return dot;
}

}  // namespace

MenuView::MenuView(const MenuRows& rows, const DashboardStyle& style) : MenuView(nullptr) {
    setAttribute(Qt::WA_DeleteOnClose);
    setStyleSheet(menuStyleSheet(style));
    addRows(rows);
}

MenuView::MenuView(QWidget* parent) : QMenu(parent) {}

void MenuView::addRows(const MenuRows& rows) {
    // The titles are measured in the font that the style sheet gives.
    ensurePolished();
    for (const auto& row : rows) {
        if (row.separates) {
            addSeparator();
        } else {
            addRow(row);
        }
    }
}

void MenuView::addRow(const MenuRow& row) {
    QAction* action = nullptr;
    if (row.children.empty()) {
        action = addAction(rowTitle(row.title, font()));
        if (row.action) QObject::connect(action, &QAction::triggered, action, row.action);
    } else {
        auto* submenu = new MenuView(this);
        submenu->setTitle(rowTitle(row.title, font()));
        submenu->addRows(row.children);
        action = addMenu(submenu);
    }
    if (row.swatch) action->setIcon(swatch(*row.swatch, row.checked));
    action->setEnabled(row.isEnabled());
    action->setCheckable(row.checked);
    action->setChecked(row.checked);
    if (row.keyEquivalent) action->setShortcut(shortcut(*row.keyEquivalent));
}

void MenuView::keyPressEvent(QKeyEvent* event) {
    auto& whole = outermost();
    auto* action = whole.actionFor(*event);
    if (action == nullptr) {
        QMenu::keyPressEvent(event);
        return;
    }
    whole.close();
    action->trigger();
}

MenuView& MenuView::outermost() {
    auto* menu = this;
    while (auto* above = dynamic_cast<MenuView*>(menu->parentWidget())) menu = above;
    return *menu;
}

QAction* MenuView::actionFor(const QKeyEvent& event) const {
    if (event.modifiers() != Qt::ControlModifier) return nullptr;
    const QKeySequence pressed(event.keyCombination());
    for (auto* action : actions()) {
        if (action->isEnabled() && action->shortcut() == pressed) return action;
    }
    return nullptr;
}

}  // namespace tidewatch
