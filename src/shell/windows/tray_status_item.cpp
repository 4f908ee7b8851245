#include "shell/windows/tray_status_item.h"

#include <QCursor>
#include <QGuiApplication>
#include <QIcon>
#include <array>
#include <utility>

#include "shell/icons/status_image.h"
#include "shell/windows/menu_view.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {

namespace {

constexpr std::array iconSizes = {16, 22, 24, 32, 48, 64};

/// The title is set every second, and querying for a tray costs more than everything else in that second.
constexpr int titlesBetweenLooks = 4;

/// The toolkit looks for markup in the first line only, and the project's name may look like it.
QString plainToolTip(const std::string& words) {
    return text("Tidewatch\n" + words);
}

}  // namespace

TrayStatusItem::TrayStatusItem(const ThemeController& theme) : theme_(theme) {
    makeIcon();
}
TrayStatusItem::~TrayStatusItem() = default;

void TrayStatusItem::setTitle(const StatusTitle& title) {
    const bool trayAppeared = lookForTray();
    if (trayAppeared) makeIcon();
    if (title_ == title && !trayAppeared) return;
    title_ = title;
    drawIcon();
}

bool TrayStatusItem::lookForTray() {
    if (titlesUntilLook_-- > 0) return false;
    titlesUntilLook_ = titlesBetweenLooks;
    const bool wasThere = std::exchange(trayWasThere_, QSystemTrayIcon::isSystemTrayAvailable());
    return trayWasThere_ && !wasThere;
}

void TrayStatusItem::offerMenu(std::function<MenuRows()> rows) {
    rows_ = std::move(rows);
    makeIcon();
}

bool TrayStatusItem::isShown() const {
    return trayWasThere_ && icon_->isVisible();
}

void TrayStatusItem::showMessage(const std::string& title, const std::string& body) {
    icon_->showMessage(text(title), text(body), QGuiApplication::windowIcon());
}

void TrayStatusItem::popUpMenu(const MenuRows& rows) {
    if (menu_) menu_->close();
    menu_ = new MenuView(rows, theme_.active().dashboard);
    menu_->popup(QCursor::pos());
}

void TrayStatusItem::makeIcon() {
    icon_.reset();
    drawnMenu_.reset();
    icon_ = std::make_unique<QSystemTrayIcon>();
    QObject::connect(icon_.get(), &QSystemTrayIcon::activated, icon_.get(),
                     [this](QSystemTrayIcon::ActivationReason reason) {
                         if (!clicked_) return;
                         if (reason == QSystemTrayIcon::Trigger) clicked_(Click::left);
                         if (reason == QSystemTrayIcon::Context) clicked_(Click::right);
                     });
    if (!rows_) return;
    drawnMenu_ = std::make_unique<TrayDrawnMenu>(rows_);
    drawnMenu_->offer(*icon_);
}

void TrayStatusItem::drawIcon() {
    QIcon icon;
    for (const int size : iconSizes) icon.addPixmap(QPixmap::fromImage(statusImage(size, *title_)));
    icon_->setIcon(icon);
    icon_->setToolTip(plainToolTip(title_->text()));
    icon_->show();
}

}  // namespace tidewatch
