#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace tidewatch::platform {

/// How a transfer ended without having been complete.
struct HttpFailure {
    bool isCancelled = false;  ///< by HttpTransfer::cancel()
    std::string message;       ///< for the user, in the words of the platform
};

/// What a transfer tells, on the main thread and never inside a call of the client.
struct HttpListener {
    std::function<void(std::size_t bytes)> received;  ///< a piece of the content has arrived
    /// The end, told once; nullopt if everything was received, whatever the status of the response.
    std::function<void(const std::optional<HttpFailure>& failure)> ended;
};

/// A running GET request. Nothing is told any more after its destruction, which also ends it; its listener
/// may destroy it.
class HttpTransfer {
public:
    virtual ~HttpTransfer() = default;

    /// Ends it early; its end is told as usual. Ignored after the end.
    virtual void cancel() = 0;
};

/// Requests to the network, without cookies and caches. Main thread only.
class HttpClient {
public:
    virtual ~HttpClient() = default;

    /// Requests `url`. Fails if nothing arrives for `timeOut`. Returns nullptr, and tells nothing, if `url`
    /// is not an HTTPS URL.
    [[nodiscard]] virtual std::unique_ptr<HttpTransfer> get(const std::string& url,
                                                            std::chrono::milliseconds timeOut,
                                                            HttpListener listener) = 0;
};

}  // namespace tidewatch::platform
