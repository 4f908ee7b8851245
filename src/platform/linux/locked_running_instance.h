#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/api/log.h"
#include "platform/api/running_instance.h"
#include "platform/linux/file_lock.h"

class QLocalServer;

namespace tidewatch::platform {

/// The one instance per data directory: a lock in it keeps others out, a local socket beside the lock takes
/// their request to come to the front. Neither needs a session bus.
class LockedRunningInstance final : public RunningInstance {
public:
    /// `log` must outlive this object.
    explicit LockedRunningInstance(Log& log);
    ~LockedRunningInstance() override;

    [[nodiscard]] InstanceClaim claim(const std::string& directory) override;
    void onReopen(std::function<void()> reopen) override { reopen_ = std::move(reopen); }

private:
    [[nodiscard]] bool askOtherToReopen(const std::string& directory) const;
    void listen(const std::string& directory);
    void answerRequests();

    Log& log_;
    std::function<void()> reopen_;
    std::unique_ptr<FileLock> lock_;
    std::unique_ptr<QLocalServer> server_;
};

}  // namespace tidewatch::platform
