#include "tests/platform/freedesktop/private_bus.h"

#include <gtest/gtest.h>
#include <signal.h>

#include <QUuid>

namespace tidewatch::platform {
namespace {

constexpr char configuration[] =
    R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path=%1/bus</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

constexpr int startTimeOut = 10'000;

}  // namespace

PrivateBus::PrivateBus() {
    const auto directory = QString::fromStdString(directory_.path());
    directory_.write("bus.conf", QString(configuration).arg(directory).toStdString());
    start();
}

void PrivateBus::start() {
    const auto directory = QString::fromStdString(directory_.path());
    daemon_.start("dbus-daemon",
                  {"--nofork", "--nopidfile", "--print-address", "--config-file=" + directory + "/bus.conf"});
    const bool answered = daemon_.waitForReadyRead(startTimeOut);
    address_ = QString::fromUtf8(daemon_.readAllStandardOutput()).trimmed();
    EXPECT_TRUE(answered && !address_.isEmpty()) << daemon_.readAllStandardError().toStdString();
}

PrivateBus::~PrivateBus() {
    for (const auto& name : connections_) QDBusConnection::disconnectFromBus(name);
    stop();
}

QDBusConnection PrivateBus::connect() {
    connections_.push_back(QUuid::createUuid().toString());
    return QDBusConnection::connectToBus(address_, connections_.back());
}

void PrivateBus::stop() {
    if (daemon_.state() == QProcess::NotRunning) return;
    resume();
    daemon_.terminate();
    daemon_.waitForFinished();
}

void PrivateBus::suspend() {
    ::kill(static_cast<pid_t>(daemon_.processId()), SIGSTOP);
}

void PrivateBus::resume() {
    ::kill(static_cast<pid_t>(daemon_.processId()), SIGCONT);
}

}  // namespace tidewatch::platform
