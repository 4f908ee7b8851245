#pragma once

namespace tidewatch::platform {

/// The memory that this process holds. Main thread only.
class ProcessMemory {
public:
    virtual ~ProcessMemory() = default;

    /// Returns to the system the heap that was freed and is kept for later use. Takes some milliseconds: for the
    /// moment after the start, or after something large has gone for good.
    virtual void releaseUnused() = 0;
};

}  // namespace tidewatch::platform
