#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace tidewatch::platform {

/// Questions at the start, before the toolkit asks the same without a limit. Each takes at most `timeout`
/// for each address; whoever is well answers within a millisecond.

/// The addresses in `managers`, the form of SESSION_MANAGER, at which a session manager on this machine
/// answers; empty if none does.
[[nodiscard]] std::string responsiveSessionManagers(std::string_view managers,
                                                    std::chrono::milliseconds timeout);

/// Whether the message bus at `address` answers a client that greets it.
[[nodiscard]] bool isBusResponsive(const std::string& address, std::chrono::milliseconds timeout);

}  // namespace tidewatch::platform
