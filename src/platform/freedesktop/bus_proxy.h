#pragma once

#include <chrono>
#include <memory>
#include <string>

namespace tidewatch::platform {

/// A proxy between this process and its session's message buses, so that none of them can block it. The
/// toolkit calls them on the main thread and waits for the reply, while a bus or a service may hang without
/// disconnecting. The proxy replies with an error to calls that time out, and fails further calls at once
/// until the unresponsive peer replies again. When a bus disconnects, the proxy closes the toolkit's
/// connection.
///
/// Forwards on its own thread, and accepts connections from this process only. Does not support passing file
/// descriptors.
class BusProxy final {
public:
    /// `timeout` is the maximum time for a reply. Services that are only called asynchronously, such as
    /// notifications, are exempt.
    explicit BusProxy(std::chrono::milliseconds timeout = std::chrono::seconds(1));
    ~BusProxy();
    BusProxy(const BusProxy&) = delete;
    BusProxy& operator=(const BusProxy&) = delete;

    /// The address to use in this process instead of the bus address `address`. If that is not a Unix socket,
    /// returns an address that fails immediately. Thread-safe.
    [[nodiscard]] std::string proxiedAddress(const std::string& address);

private:
    class Worker;
    std::unique_ptr<Worker> worker_;
};

}  // namespace tidewatch::platform
