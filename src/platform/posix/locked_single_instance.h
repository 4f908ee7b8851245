#pragma once

#include <QObject>
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/api/log.h"
#include "platform/api/single_instance.h"
#include "platform/posix/directory_lock.h"
#include "platform/posix/reopen_socket.h"

class QSocketNotifier;

namespace tidewatch::platform {

/// One instance per data directory: a lock file keeps others out, and a local socket beside it receives their
/// requests to come to the front. Neither needs a session bus.
///
/// An instance that is shutting down does not answer; a claim waits for it. A running one answers at once.
class LockedSingleInstance final : public SingleInstance {
public:
    /// How long a claim waits for an unresponsive instance to end.
    static constexpr std::chrono::milliseconds defaultTimeout{10'000};

    /// `lock` and `log` must outlive this object.
    /// `pause` is the delay before a retry.
    LockedSingleInstance(DirectoryLock& lock, Log& log, std::chrono::milliseconds timeout = defaultTimeout,
                         std::chrono::milliseconds pause = std::chrono::seconds(1));
    ~LockedSingleInstance() override;

    [[nodiscard]] InstanceClaim claim(const std::string& directory) override;
    void onReopen(std::function<void()> reopen) override { reopen_ = std::move(reopen); }

private:
    void listen();
    void retryListening();
    void acceptRequests();
    void answerRequests();

    DirectoryLock& lock_;
    Log& log_;
    const std::chrono::milliseconds timeout_;
    const std::chrono::milliseconds pause_;
    bool failureLogged_ = false;
    std::string directory_;
    std::function<void()> reopen_;
    std::unique_ptr<ReopenSocket> socket_;
    std::unique_ptr<QSocketNotifier> notifier_;
    std::vector<FileDescriptor> requests_;  // not answered yet
    QObject mainThread_;                    // context object for jobs on the main thread
};

}  // namespace tidewatch::platform
