#include "shell/windows/tray_drawn_menu.h"

#include <QAction>
#include <algorithm>
#include <utility>

#include "shell/windows/menu_row_look.h"

namespace tidewatch {

namespace {

/// A grey for light and dark menus: a tray does not tell which its own is.
const MenuInk anyTray{.symbol = QColor(0x80, 0x80, 0x80), .ground = QColor(Qt::transparent)};

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

/// Whether the rows of one differ from those of the other only in what a tray takes over into a row that it
/// already has: it keeps a check mark, key or icon of which later nothing is said.
bool haveSameShape(const MenuRows& first, const MenuRows& second) {
    return std::ranges::equal(first, second, [](const MenuRow& one, const MenuRow& other) {
        return one.separates == other.separates && one.checked == other.checked &&
               one.keyEquivalent == other.keyEquivalent &&
               one.swatch.has_value() == other.swatch.has_value() && one.symbol == other.symbol &&
               haveSameShape(one.children, other.children);
    });
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

/// A tray may still act on the row that it has drawn while the next opening is prepared, so that rows are
/// kept where possible.
void TrayDrawnMenu::refill() {
    auto rows = rows_();
    if (haveSameShape(filledWith_, rows)) {
        updateRows(menu_, rows);
    } else {
        removeRows(menu_);
        addRows(menu_, rows);
    }
    filledWith_ = std::move(rows);
}

void TrayDrawnMenu::addRows(QMenu& menu, const MenuRows& rows) {
    for (const auto& row : rows) {
        if (row.separates) {
            menu.addSeparator();
        } else if (row.children.empty()) {
            applyRow(*menu.addAction(busTitle(row.title, menu.font())), row);
        } else {
            auto* submenu = menu.addMenu(busTitle(row.title, menu.font()));
            addRows(*submenu, row.children);
            applyRow(*submenu->menuAction(), row);
        }
    }
}

void TrayDrawnMenu::updateRows(QMenu& menu, const MenuRows& rows) {
    const auto actions = menu.actions();
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const auto& row = rows[index];
        auto* action = actions[static_cast<qsizetype>(index)];
        if (row.separates) continue;
        if (auto* submenu = action->menu()) updateRows(*submenu, row.children);
        applyRow(*action, row);
    }
}

void TrayDrawnMenu::applyRow(QAction& action, const MenuRow& row) {
    action.setText(busTitle(row.title, menu_.font()));
    if (row.swatch) {
        const auto& icon = swatch(*row.swatch);
        if (action.icon().cacheKey() != icon.cacheKey()) action.setIcon(icon);
    }
    if (!row.symbol.empty() && action.icon().isNull()) action.setIcon(menuSymbol(row.symbol, anyTray, false));
    action.setEnabled(row.isEnabled());
    action.setCheckable(row.checked);
    action.setChecked(row.checked);
    if (row.keyEquivalent) action.setShortcut(menuShortcut(*row.keyEquivalent));
    QObject::disconnect(&action, &QAction::triggered, &action, nullptr);
    if (row.action) QObject::connect(&action, &QAction::triggered, &action, row.action);
}

/// The same one for each row of a colour: the toolkit remembers for a long time how it scaled an icon.
const QIcon& TrayDrawnMenu::swatch(const RgbColor& color) {
    auto& icon = swatches_[qRgb(color.red, color.green, color.blue)];
    if (icon.isNull()) icon = menuSwatch(color, false);
    return icon;
}

}  // namespace tidewatch
