#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "base/result.h"
#include "platform/posix/file_descriptor.h"

namespace tidewatch::platform {

/// The socket in the data directory through which a later start asks the running instance to come to the
/// front. Whoever connects asks, and is answered with "ok"; without an answer whoever listens is ending.
///
/// The directory's name may be longer than the name of a socket can be, and need not be UTF-8.
class ReopenSocket final {
public:
    [[nodiscard]] static std::string pathIn(const std::string& directory);

    /// Listens, in the place of any socket there. To be called only by who holds the directory's lock.
    [[nodiscard]] static Result<std::unique_ptr<ReopenSocket>> listenIn(const std::string& directory);

    explicit ReopenSocket(int descriptor) : listening_(descriptor) {}

    /// Becomes readable when somebody asks.
    [[nodiscard]] int descriptor() const { return listening_.get(); }

    /// The connection to one who has asked; a closed one if nobody has, an error if the system has no
    /// descriptor left for it. Never waits.
    [[nodiscard]] Result<FileDescriptor> nextRequest() const;

    static void answer(const FileDescriptor& request);

    /// Asks whoever listens in `directory`. True once it has answered; false after `timeout`, or at once if
    /// nobody listens or whoever did is gone.
    [[nodiscard]] static bool askIn(const std::string& directory, std::chrono::milliseconds timeout);

private:
    FileDescriptor listening_;
};

}  // namespace tidewatch::platform
