#include "platform/linux/locked_running_instance.h"

#include <fmt/format.h>

#include <QLocalServer>
#include <QLocalSocket>

namespace tidewatch::platform {

namespace {

constexpr int patienceMilliseconds = 3000;
constexpr char acknowledgement[] = "ok";

QString socketPath(const std::string& directory) {
    return QString::fromStdString(directory + "/reopen.socket");
}

}  // namespace

LockedRunningInstance::LockedRunningInstance(Log& log) : log_(log) {}

LockedRunningInstance::~LockedRunningInstance() = default;

InstanceClaim LockedRunningInstance::claim(const std::string& directory) {
    lock_ = std::make_unique<FileLock>(directory + "/lock");
    if (lock_->state() == FileLock::State::heldByAnother) {
        return askOtherToReopen(directory) ? InstanceClaim::handedOver : InstanceClaim::denied;
    }
    if (lock_->state() == FileLock::State::unavailable) {
        log_.warning(fmt::format(
            "Tidewatch: no lock could be made in {}; a second instance would not be noticed", directory));
        return InstanceClaim::first;
    }
    listen(directory);
    return InstanceClaim::first;
}

bool LockedRunningInstance::askOtherToReopen(const std::string& directory) const {
    QLocalSocket socket;
    socket.connectToServer(socketPath(directory));
    return socket.waitForConnected(patienceMilliseconds) && socket.waitForReadyRead(patienceMilliseconds);
}

void LockedRunningInstance::listen(const std::string& directory) {
    // Whoever left a socket here is gone: the lock is ours.
    QLocalServer::removeServer(socketPath(directory));
    server_ = std::make_unique<QLocalServer>();
    server_->setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(server_.get(), &QLocalServer::newConnection, server_.get(),
                     [this] { answerRequests(); });
    if (!server_->listen(socketPath(directory))) {
        log_.warning(fmt::format("Tidewatch: a second start cannot be answered: {}",
                                 server_->errorString().toStdString()));
    }
}

void LockedRunningInstance::answerRequests() {
    while (auto* request = server_->nextPendingConnection()) {
        QObject::connect(request, &QLocalSocket::disconnected, request, &QObject::deleteLater);
        request->write(acknowledgement);
        request->flush();
        request->disconnectFromServer();
        if (reopen_) reopen_();
    }
}

}  // namespace tidewatch::platform
