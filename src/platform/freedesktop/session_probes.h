#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace tidewatch::platform {

/// Probes at start-up, before the toolkit connects without a timeout. Each takes at most `timeout` per
/// address; a healthy service answers within a millisecond.

/// Those addresses in `managers`, in the format of SESSION_MANAGER, at which a local session manager
/// responds; empty if none.
[[nodiscard]] std::string responsiveSessionManagers(std::string_view managers,
                                                    std::chrono::milliseconds timeout);

/// Whether the message bus at `address` responds to a handshake.
[[nodiscard]] bool isBusResponsive(const std::string& address, std::chrono::milliseconds timeout);

}  // namespace tidewatch::platform
