#pragma once

#include <QDBusConnection>
#include <QString>

namespace tidewatch::platform {

/// This program's own connection to a message bus, separate from the toolkit's. Reconnects on the next use
/// after the bus was restarted. Main thread only.
class MessageBus final {
public:
    /// For the bus at `address`; does not connect yet.
    explicit MessageBus(QString address);
    ~MessageBus();
    MessageBus(const MessageBus&) = delete;
    MessageBus& operator=(const MessageBus&) = delete;

    /// Not connected if there is no bus.
    [[nodiscard]] QDBusConnection connection();

private:
    const QString address_;
    int attempts_ = 0;
    QString name_;
};

}  // namespace tidewatch::platform
