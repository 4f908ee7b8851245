#pragma once

#include <functional>
#include <string>

namespace tidewatch::platform {

/// The result of claiming to be the only running instance.
enum class InstanceClaim {
    first,       ///< this is the only instance; no other can start
    handedOver,  ///< another instance is running and has been asked to come to the front
    denied,      ///< another instance holds the data directory but does not respond
};

/// Prevents a second instance on the same data directory during this object's lifetime. Main thread only.
class SingleInstance {
public:
    virtual ~SingleInstance() = default;

    /// Must be called once, before any file in `directory`, the data directory, is read. If no lock can be
    /// created the result is `first`, with a log message.
    [[nodiscard]] virtual InstanceClaim claim(const std::string& directory) = 0;

    /// Sets the callback, on the main thread, for each later start that hands over to this instance.
    virtual void onReopen(std::function<void()> reopen) = 0;
};

}  // namespace tidewatch::platform
