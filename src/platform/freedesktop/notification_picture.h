#pragma once

#include <QDBusArgument>
#include <QImage>
#include <QMetaType>

namespace tidewatch::platform {

/// The picture of a notification as the hint "image-data" wants it.
struct NotificationPicture {
    QImage image;
};

QDBusArgument& operator<<(QDBusArgument& message, const NotificationPicture& picture);
const QDBusArgument& operator>>(const QDBusArgument& message, NotificationPicture& picture);

}  // namespace tidewatch::platform

Q_DECLARE_METATYPE(tidewatch::platform::NotificationPicture)
