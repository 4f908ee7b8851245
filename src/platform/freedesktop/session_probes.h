#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace tidewatch::platform {

/// Questions at the start, before the toolkit asks the same without a limit. Each takes at most `patience`
/// for each address; whoever is well answers within a millisecond.

/// The addresses in `managers`, the form of SESSION_MANAGER, at which a session manager on this machine
/// answers; empty if none does.
[[nodiscard]] std::string answeringSessionManagers(std::string_view managers,
                                                   std::chrono::milliseconds patience);

/// Whether the message bus at `address` answers a client that greets it.
[[nodiscard]] bool busAnswers(const std::string& address, std::chrono::milliseconds patience);

}  // namespace tidewatch::platform
