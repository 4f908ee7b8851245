#include "platform/freedesktop/xdg_applications.h"

#include <QLocale>

namespace tidewatch::platform {

std::optional<ApplicationInfo> XdgApplications::info(const AppId& app) const {
    return entries_.info(app.text(), QLocale::system().name().toStdString());
}

}  // namespace tidewatch::platform
