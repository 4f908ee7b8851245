#pragma once

#include <QMenu>

#include "shell/menu_row.h"
#include "shell/themes/theme.h"

namespace tidewatch {

/// A menu made of rows, in the colours of the active theme. While it is open, or a menu within it, the
/// control key and the key equivalent of one of its own rows choose that row.
class MenuView final : public QMenu {
public:
    /// Deletes itself when it is closed.
    MenuView(const MenuRows& rows, const DashboardStyle& style);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    explicit MenuView(QWidget* parent);

    void addRows(const MenuRows& rows);
    void addRow(const MenuRow& row);
    [[nodiscard]] MenuView& outermost();
    [[nodiscard]] QAction* actionFor(const QKeyEvent& event) const;
};

}  // namespace tidewatch
