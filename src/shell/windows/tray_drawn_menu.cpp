#include "shell/windows/tray_drawn_menu.h"

#include <QAction>
#include <utility>

#include "shell/windows/menu_row_look.h"

namespace tidewatch {

namespace {

/// On the bus an underscore marks a row's access key and two are one. The toolkit turns the first ampersand
/// of a title into such a mark, and leaves alone what else is in it.
QString busTitle(const std::string& text, const QFont& font) {
    auto title = menuTitle(text, font).replace('_', "__");
    if (const auto first = title.indexOf('&'); first >= 0) title.insert(first, '&');
    return title;
}

/// The toolkit destroys what stands for a row on the bus only when the row is removed from its menu, and not
/// with the menu.
void removeRows(QMenu& menu) {
    const auto submenus = menu.findChildren<QMenu*>(Qt::FindDirectChildrenOnly);
    menu.clear();
    for (auto* submenu : submenus) {
        removeRows(*submenu);
        delete submenu;
    }
}

}  // namespace

TrayDrawnMenu::TrayDrawnMenu(std::function<MenuRows()> rows) : rows_(std::move(rows)) {
    QObject::connect(&menu_, &QMenu::aboutToShow, &menu_, [this] { refill(); });
}

TrayDrawnMenu::~TrayDrawnMenu() {
    removeRows(menu_);
}

void TrayDrawnMenu::offer(QSystemTrayIcon& icon) {
    icon.setContextMenu(&menu_);
    // Other trays leave the click to the program, whose own menu looks better.
    const bool onTheBus = menu_.platformMenu() != nullptr;
    if (onTheBus) {
        refill();
    } else {
        icon.setContextMenu(nullptr);
    }
}

void TrayDrawnMenu::refill() {
    removeRows(menu_);
    addRows(menu_, rows_());
}

void TrayDrawnMenu::addRows(QMenu& menu, const MenuRows& rows) {
    for (const auto& row : rows) {
        if (row.separates) {
            menu.addSeparator();
        } else {
            addRow(menu, row);
        }
    }
}

void TrayDrawnMenu::addRow(QMenu& menu, const MenuRow& row) {
    const auto title = busTitle(row.title, menu.font());
    QAction* action = nullptr;
    if (row.children.empty()) {
        action = menu.addAction(title);
        if (row.action) QObject::connect(action, &QAction::triggered, action, row.action);
    } else {
        auto* submenu = menu.addMenu(title);
        addRows(*submenu, row.children);
        action = submenu->menuAction();
    }
    if (row.swatch) action->setIcon(swatch(*row.swatch));
    action->setEnabled(row.isEnabled());
    action->setCheckable(row.checked);
    action->setChecked(row.checked);
    if (row.keyEquivalent) action->setShortcut(menuShortcut(*row.keyEquivalent));
}

/// The same one for each row of a colour: the toolkit remembers for a long time how it scaled an icon.
const QIcon& TrayDrawnMenu::swatch(const RgbColor& color) {
    auto& icon = swatches_[qRgb(color.red, color.green, color.blue)];
    if (icon.isNull()) icon = menuSwatch(color, false);
    return icon;
}

}  // namespace tidewatch
