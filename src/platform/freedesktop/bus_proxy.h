#pragma once

#include <chrono>
#include <memory>
#include <string>

namespace tidewatch::platform {

/// Stands between this process and the message buses of its session, so that none of them can hold it up. The
/// toolkit asks them on the main thread and waits for the answer; a bus, or whoever is asked through it, may
/// have stopped without having gone. What is not answered in time is answered with an error here, and what is
/// asked after that at once, until the silent one speaks again. A bus that goes is gone for the toolkit too.
///
/// Passes everything on by a thread of its own, and serves this process alone. Sockets do not travel through.
class BusProxy final {
public:
    /// `timeout` is the longest that an answer may take. Who is only ever asked without waiting, such as the
    /// notification service, has all the time that whoever asked gives it.
    explicit BusProxy(std::chrono::milliseconds timeout = std::chrono::seconds(1));
    ~BusProxy();
    BusProxy(const BusProxy&) = delete;
    BusProxy& operator=(const BusProxy&) = delete;

    /// The address to be used in this process in place of `address`, a message bus's own. One that leads
    /// nowhere, at once, for an address that is none of a socket on this machine. Any thread.
    [[nodiscard]] std::string proxiedAddress(const std::string& address);

private:
    class Worker;
    std::unique_ptr<Worker> worker_;
};

}  // namespace tidewatch::platform
