#pragma once

#include <QDBusConnection>
#include <QString>

namespace tidewatch::platform {

/// This program's own connection to the session bus, apart from the toolkit's. A bus that went and came back
/// is found again by the next question. Main thread only.
class SessionBus final {
public:
    /// To the bus at `address`; nothing is asked yet.
    explicit SessionBus(QString address);
    ~SessionBus();
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;

    /// Not connected if there is no bus at this moment.
    [[nodiscard]] QDBusConnection connection();

private:
    const QString address_;
    int attempts_ = 0;
    QString name_;
};

}  // namespace tidewatch::platform
