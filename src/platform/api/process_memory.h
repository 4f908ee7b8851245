#pragma once

namespace tidewatch::platform {

/// The memory that this process holds. Main thread only.
class ProcessMemory {
public:
    virtual ~ProcessMemory() = default;

    /// Returns freed heap memory to the system. Takes some milliseconds: for use after start-up, or after
    /// something large has been destroyed for good.
    virtual void releaseUnused() = 0;
};

}  // namespace tidewatch::platform
