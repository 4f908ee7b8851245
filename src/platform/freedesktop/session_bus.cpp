#include "platform/freedesktop/session_bus.h"

#include <utility>

namespace tidewatch::platform {

SessionBus::SessionBus(QString address) : address_(std::move(address)) {}

SessionBus::~SessionBus() {
    if (!name_.isEmpty()) QDBusConnection::disconnectFromBus(name_);
}

QDBusConnection SessionBus::connection() {
    if (!name_.isEmpty()) {
        QDBusConnection current(name_);
        if (current.isConnected()) return current;
        QDBusConnection::disconnectFromBus(name_);
    }
    // Names are unique: holders of the old connection keep it open under its name.
    name_ = QString("tidewatch-%1").arg(++attempts_);
    return QDBusConnection::connectToBus(address_, name_);
}

}  // namespace tidewatch::platform
