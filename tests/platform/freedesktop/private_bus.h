#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>

#include "support/temporary_directory.h"

namespace tidewatch::platform {

/// A message bus for one test alone, on which nothing is started on demand.
class PrivateBus final {
public:
    /// Fails the running test if the bus does not come up.
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    /// A connection of its own at each call.
    [[nodiscard]] QDBusConnection connect();

    [[nodiscard]] const QString& address() const { return address_; }

    void stop();

    /// Once more after a stop, at the same address. Fails the running test if the bus does not come up.
    void start();

    /// Keeps the bus from doing anything, as a debugger does, until it is resumed.
    void suspend();
    void resume();

private:
    test::TemporaryDirectory directory_;
    QProcess daemon_;
    QString address_;
    QStringList connections_;
};

}  // namespace tidewatch::platform
