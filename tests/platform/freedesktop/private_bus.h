#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>

#include "support/temporary_directory.h"

namespace tidewatch::platform {

/// A private message bus for one test, without service activation.
class PrivateBus final {
public:
    /// Fails the current test if the bus does not start.
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    /// A new connection on each call.
    [[nodiscard]] QDBusConnection connect();

    [[nodiscard]] const QString& address() const { return address_; }

    void stop();

    /// Restarts after a stop, at the same address. Fails the running test if the bus does not come up.
    void start();

    /// Suspends the bus, like a debugger, until it is resumed.
    void suspend();
    void resume();

private:
    test::TemporaryDirectory directory_;
    QProcess daemon_;
    QString address_;
    QStringList connections_;
};

}  // namespace tidewatch::platform
