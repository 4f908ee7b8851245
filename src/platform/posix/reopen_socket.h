#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "base/result.h"
#include "platform/posix/file_descriptor.h"

namespace tidewatch::platform {

/// The socket in the data directory through which a later instance asks the running one to come to the front.
/// A connection is the request, "ok" the answer; no answer means that the listener is shutting down.
///
/// The directory's path may be longer than sun_path, and need not be UTF-8.
class ReopenSocket final {
public:
    [[nodiscard]] static std::string pathIn(const std::string& directory);

    /// Listens, replacing any existing socket. The caller must hold the directory's lock.
    [[nodiscard]] static Result<std::unique_ptr<ReopenSocket>> listenIn(const std::string& directory);

    explicit ReopenSocket(int descriptor) : listening_(descriptor) {}

    /// Becomes readable when there is a request.
    [[nodiscard]] int descriptor() const { return listening_.get(); }

    /// The next request's connection; closed if there is none, an error if the system is out of descriptors.
    /// Never blocks.
    [[nodiscard]] Result<FileDescriptor> nextRequest() const;

    static void answer(const FileDescriptor& request);

    /// Sends a request to the listener in `directory`. Returns true once it has answered; false after
    /// `timeout`, or at once if nobody listens or the listener closes.
    [[nodiscard]] static bool askIn(const std::string& directory, std::chrono::milliseconds timeout);

private:
    FileDescriptor listening_;
};

}  // namespace tidewatch::platform
