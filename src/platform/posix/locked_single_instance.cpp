#include "platform/posix/locked_single_instance.h"

#include <fmt/format.h>
#include <unistd.h>

#include <QMetaObject>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <thread>
#include <utility>

namespace tidewatch::platform {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds pauseBetweenTries(50);
constexpr milliseconds timeToEnd(20);

}  // namespace

LockedSingleInstance::LockedSingleInstance(DirectoryLock& lock, Log& log, milliseconds timeout,
                                           milliseconds pause)
    : lock_(lock), log_(log), timeout_(timeout), pause_(pause) {}

LockedSingleInstance::~LockedSingleInstance() {
    lock_.watchCompanion({}, {});
    if (socket_ && lock_.isHeld()) ::unlink(ReopenSocket::pathIn(directory_).c_str());
}

InstanceClaim LockedSingleInstance::claim(const std::string& directory) {
    directory_ = directory;
    for (const auto end = Clock::now() + timeout_;;) {
        switch (lock_.take(directory)) {
            case FileLock::State::held:
                listen();
                return InstanceClaim::first;
            case FileLock::State::unavailable:
                log_.warning(fmt::format(
                    "Tidewatch: no lock could be made in {}; a second instance would not be noticed",
                    directory));
                return InstanceClaim::first;
            case FileLock::State::heldByAnother:
                break;
        }
        const auto left = std::chrono::duration_cast<milliseconds>(end - Clock::now());
        if (ReopenSocket::askIn(directory, std::max(left, milliseconds()))) return InstanceClaim::handedOver;
        if (Clock::now() >= end) return InstanceClaim::denied;
        std::this_thread::sleep_for(pauseBetweenTries);
    }
}

void LockedSingleInstance::listen() {
    auto socket = ReopenSocket::listenIn(directory_);
    if (!socket) {
        lock_.watchCompanion({}, {});
        if (!std::exchange(failureLogged_, true)) {
            log_.warning("Tidewatch: a second start cannot be answered: " + socket.error().message);
        }
        notifier_.reset();
        socket_.reset();
        QTimer::singleShot(pause_, &mainThread_, [this] { retryListening(); });
        return;
    }
    failureLogged_ = false;
    notifier_.reset();
    socket_ = std::move(socket).value();
    notifier_ = std::make_unique<QSocketNotifier>(socket_->descriptor(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [this] { acceptRequests(); });
    lock_.watchCompanion(ReopenSocket::pathIn(directory_), [this] {
        QMetaObject::invokeMethod(
            &mainThread_, [this] { retryListening(); }, Qt::QueuedConnection);
    });
}

void LockedSingleInstance::retryListening() {
    // Several writes may have requested it by now.
    const bool isBack = socket_ && ::access(ReopenSocket::pathIn(directory_).c_str(), F_OK) == 0;
    if (!isBack && lock_.isHeld()) listen();
}

void LockedSingleInstance::acceptRequests() {
    auto request = socket_->nextRequest();
    for (; request && request.value().isOpen(); request = socket_->nextRequest()) {
        requests_.push_back(std::move(request).value());
    }
    if (!request) {
        // The notifier would fire again immediately for the same request.
        notifier_->setEnabled(false);
        QTimer::singleShot(pause_, notifier_.get(), [this] { notifier_->setEnabled(true); });
    }
    // If this process is about to terminate, it does not answer any more.
    QTimer::singleShot(timeToEnd, &mainThread_, [this] { answerRequests(); });
}

void LockedSingleInstance::answerRequests() {
    for (const auto& request : std::exchange(requests_, {})) {
        ReopenSocket::answer(request);
        if (reopen_) reopen_();
    }
}

}  // namespace tidewatch::platform
