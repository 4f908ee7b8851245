#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/tagged_string.h"

namespace tidewatch::platform {

/// An application that has windows at the moment.
struct RunningApplication {
    std::uint64_t handle = 0;   ///< the platform's own name for it, for askToClose()
    AppId id{};                 ///< empty if the desktop does not know it
    std::string name{};         ///< as shown to the user
    std::string processName{};  ///< of its process as in ProcessLoad::name; empty if unknown
};

/// The running applications. Main thread only.
class RunningApplications {
public:
    virtual ~RunningApplications() = default;

    /// Those with a window, each process once.
    [[nodiscard]] virtual std::vector<RunningApplication> list() = 0;

    /// Asks the application to close, as if its windows were closed by hand: it may ask back, or refuse.
    /// Ignored if it has ended since the list.
    virtual void askToClose(const RunningApplication& application) = 0;
};

}  // namespace tidewatch::platform
