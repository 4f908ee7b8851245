#pragma once

#include <QMenu>
#include <QPointer>
#include <QSystemTrayIcon>
#include <memory>
#include <optional>

#include "shell/surfaces.h"
#include "shell/themes/theme_controller.h"
#include "shell/windows/tray_drawn_menu.h"

namespace tidewatch {

/// The status item as a tray icon, with the figure drawn into it. Recreated when a tray appears.
class TrayStatusItem final : public StatusItem {
public:
    /// `theme` must outlive this object.
    explicit TrayStatusItem(const ThemeController& theme);
    ~TrayStatusItem() override;

    void setTitle(const StatusTitle& title) override;
    void onClick(std::function<void(Click)> clicked) override { clicked_ = std::move(clicked); }
    void offerMenu(std::function<MenuRows()> rows) override;
    [[nodiscard]] bool isShown() const override;
    void showMessage(const std::string& title, const std::string& body) override;
    void popUpMenu(const MenuRows& rows) override;

private:
    /// Whether a tray has appeared since the last check; checks only occasionally.
    [[nodiscard]] bool lookForTray();
    void makeIcon();
    void drawIcon();

    const ThemeController& theme_;
    std::function<void(Click)> clicked_;
    std::optional<StatusTitle> title_;
    int titlesUntilLook_ = 0;
    bool trayWasThere_ = QSystemTrayIcon::isSystemTrayAvailable();
    std::function<MenuRows()> rows_;
    std::unique_ptr<TrayDrawnMenu> drawnMenu_;
    std::unique_ptr<QSystemTrayIcon> icon_;
    QPointer<QMenu> menu_;
};

}  // namespace tidewatch
