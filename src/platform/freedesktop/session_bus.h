#pragma once

#include <QDBusConnection>
#include <QString>

namespace tidewatch::platform {

/// This program's own connection to the session bus, separate from the toolkit's. Reconnects on the next use
/// after the bus was restarted. Main thread only.
class SessionBus final {
public:
    /// For the bus at `address`; does not connect yet.
    explicit SessionBus(QString address);
    ~SessionBus();
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;

    /// Not connected if there is no bus.
    [[nodiscard]] QDBusConnection connection();

private:
    const QString address_;
    int attempts_ = 0;
    QString name_;
};

}  // namespace tidewatch::platform
