#pragma once

#include <functional>
#include <string>

namespace tidewatch::platform {

/// What came of asking to be the one running instance.
enum class InstanceClaim {
    first,       ///< no other instance writes to the data directory, and none can start to
    handedOver,  ///< another one runs and was asked to come to the front
    denied,      ///< another one holds the data directory but did not answer
};

/// Keeps a second instance off the same data directory for as long as this object lives. Main thread only.
class SingleInstance {
public:
    virtual ~SingleInstance() = default;

    /// To be asked once, before any file in `directory`, the data directory, is read. One in which no lock
    /// can be made counts as `first`, with a line in the log.
    [[nodiscard]] virtual InstanceClaim claim(const std::string& directory) = 0;

    /// Called on the main thread each time a later start hands over to this instance.
    virtual void onReopen(std::function<void()> reopen) = 0;
};

}  // namespace tidewatch::platform
