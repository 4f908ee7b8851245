#include "shell/windows/menu_view.h"

#include <QKeyEvent>

#include "shell/windows/menu_row_look.h"
#include "shell/windows/menu_style.h"

namespace tidewatch {

namespace {

/// An ampersand that is meant is written twice.
QString rowTitle(const std::string& text, const QFont& font) {
    return menuTitle(text, font).replace('&', "&&");
}

}  // namespace

MenuView::MenuView(const MenuRows& rows, const DashboardStyle& style) : MenuView(nullptr, menuInk(style)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setStyleSheet(menuStyleSheet(style));
    addRows(rows);
}

MenuView::MenuView(QWidget* parent, const MenuInk& ink) : QMenu(parent), ink_(ink) {}

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
        auto* submenu = new MenuView(this, ink_);
        submenu->setTitle(rowTitle(row.title, font()));
        submenu->addRows(row.children);
        action = addMenu(submenu);
    }
    // The icon takes the place that the menu's own check mark would have.
    if (row.swatch) action->setIcon(menuSwatch(*row.swatch, row.checked));
    if (!row.symbol.empty()) action->setIcon(menuSymbol(row.symbol, ink_, row.checked));
    action->setEnabled(row.isEnabled());
    action->setCheckable(row.checked);
    action->setChecked(row.checked);
    if (row.keyEquivalent) action->setShortcut(menuShortcut(*row.keyEquivalent));
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
