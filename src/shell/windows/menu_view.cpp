#include "shell/windows/menu_view.h"

#include <QIcon>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>
#include <array>

#include "shell/windows/menu_style.h"

namespace tidewatch {

namespace {

QKeySequence shortcut(char keyEquivalent) {
    return QKeySequence(Qt::CTRL |
                        static_cast<Qt::Key>(QChar::fromLatin1(keyEquivalent).toUpper().unicode()));
}

/// A title as the menu wants it: an ampersand that is meant is written twice.
QString title(const std::string& text) {
    return QString::fromStdString(text).replace('&', "&&");
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

void addRow(QMenu& menu, const MenuRow& row, const QString& style);

void addRows(QMenu& menu, const MenuRows& rows, const QString& style) {
    menu.setStyleSheet(style);
    // Without a compositor the corners that the style rounds off would be black.
    for (const auto& row : rows) addRow(menu, row, style);
}

void addRow(QMenu& menu, const MenuRow& row, const QString& style) {
    if (row.isSeparator()) {
        menu.addSeparator();
        return;
    }
    QAction* action = nullptr;
    if (row.children.empty()) {
        action = menu.addAction(title(row.title));
        if (row.action) QObject::connect(action, &QAction::triggered, action, row.action);
    } else {
        auto* submenu = menu.addMenu(title(row.title));
        addRows(*submenu, row.children, style);
        action = submenu->menuAction();
    }
    if (row.swatch) action->setIcon(swatch(*row.swatch, row.checked));
    action->setEnabled(row.isEnabled());
    action->setCheckable(row.checked);
    action->setChecked(row.checked);
    if (row.keyEquivalent) action->setShortcut(shortcut(*row.keyEquivalent));
}

}  // namespace

MenuView::MenuView(const MenuRows& rows, const DashboardStyle& style) {
    setAttribute(Qt::WA_DeleteOnClose);
    addRows(*this, rows, menuStyleSheet(style));
}

void MenuView::keyPressEvent(QKeyEvent* event) {
    auto* action = actionFor(*event);
    if (action == nullptr) {
        QMenu::keyPressEvent(event);
        return;
    }
    close();
    action->trigger();
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
