#pragma once

#include <cerrno>

namespace tidewatch::platform {

/// Whether a call failed for a temporary lack of resources: descriptors or memory.
[[nodiscard]] inline bool isResourceShortage(int code) {
    return code == EMFILE || code == ENFILE || code == ENOBUFS || code == ENOMEM;
}

}  // namespace tidewatch::platform
