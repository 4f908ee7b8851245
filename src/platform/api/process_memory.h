#pragma once

namespace tidewatch::platform {

/// The memory that this process holds. Main thread only.
class ProcessMemory {
public:
    virtual ~ProcessMemory() = default;

    /// Gives the machine back what was freed and is kept for later use, and the code that has run so far:
    /// what runs again is brought back page by page. Takes some milliseconds: for the moment after the start,
    /// or after something large has gone for good.
    virtual void releaseUnused() = 0;
};

}  // namespace tidewatch::platform
