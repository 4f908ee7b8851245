#pragma once

#include <QMenu>

#include "shell/menu_row.h"
#include "shell/themes/theme.h"

namespace tidewatch {

/// A menu made of rows, in the colours of the active theme. While it is open, the control key and a row's
/// key equivalent choose the row.
class MenuView final : public QMenu {
public:
    MenuView(const MenuRows& rows, const DashboardStyle& style);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QAction* actionFor(const QKeyEvent& event) const;
};

}  // namespace tidewatch
