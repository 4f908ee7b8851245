#pragma once

#include <QHash>
#include <QIcon>
#include <QMenu>
#include <QSystemTrayIcon>
#include <functional>

#include "shell/menu_row.h"

namespace tidewatch {

/// The menu of a tray icon for trays that draw it themselves, from what the session bus tells them of it
/// (com.canonical.dbusmenu). Its rows are brought up to date each time before it opens; while only their
/// texts change, they stay the same ones to the tray.
class TrayDrawnMenu final {
public:
    explicit TrayDrawnMenu(std::function<MenuRows()> rows);
    ~TrayDrawnMenu();
    TrayDrawnMenu(const TrayDrawnMenu&) = delete;
    TrayDrawnMenu& operator=(const TrayDrawnMenu&) = delete;

    /// Offers it to the tray; does nothing if the tray is not on the bus. `icon` must not outlive this
    /// object.
    void offer(QSystemTrayIcon& icon);

private:
    void refill();
    void addRows(QMenu& menu, const MenuRows& rows);
    void updateRows(QMenu& menu, const MenuRows& rows);
    void applyRow(QAction& action, const MenuRow& row);
    const QIcon& swatch(const RgbColor& color);

    const std::function<MenuRows()> rows_;
    MenuRows filledWith_;
    QHash<QRgb, QIcon> swatches_;
    QMenu menu_;
};

}  // namespace tidewatch
