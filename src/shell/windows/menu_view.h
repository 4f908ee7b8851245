#pragma once

#include <QMenu>

#include "shell/menu_row.h"
#include "shell/themes/theme.h"
#include "shell/windows/menu_style.h"

namespace tidewatch {

/// A menu of rows, in the active theme's colours. While it or a submenu is open, Ctrl and the key equivalent
/// of one of its own rows trigger that row.
class MenuView final : public QMenu {
public:
    /// Deletes itself when closed.
    MenuView(const MenuRows& rows, const DashboardStyle& style);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    MenuView(QWidget* parent, const MenuInk& ink);

    void addRows(const MenuRows& rows);
    void addRow(const MenuRow& row);
    [[nodiscard]] MenuView& outermost();
    [[nodiscard]] QAction* actionFor(const QKeyEvent& event) const;

    const MenuInk ink_;
};

}  // namespace tidewatch
