#include "platform/freedesktop/message_bus.h"

#include <utility>

namespace tidewatch::platform {

MessageBus::MessageBus(QString address) : address_(std::move(address)) {}

MessageBus::~MessageBus() {
    if (!name_.isEmpty()) QDBusConnection::disconnectFromBus(name_);
}

QDBusConnection MessageBus::connection() {
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
