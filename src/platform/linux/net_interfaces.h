#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/api/machine_counters.h"

namespace tidewatch::platform {

struct NetInterface {
    std::string name;
    InterfaceBytes bytes;
};

/// The interfaces in the content of /proc/net/dev; a line that cannot be read is left out.
[[nodiscard]] std::vector<NetInterface> parseNetDev(std::string_view netDev);

/// The bytes of the interfaces of `netDev` that are up and backed by hardware, according to `netDirectory`
/// (/sys/class/net): virtual ones carry what a hardware one transfers, and would count twice. If there is no
/// hardware at all, as in a container, all others but the loopback.
[[nodiscard]] InterfaceBytes totalBytes(std::string_view netDev, const std::string& netDirectory);

/// The interface of the default route with the lowest metric, from the content of /proc/net/route.
[[nodiscard]] std::optional<std::string> defaultInterface(std::string_view routes);

/// The same from /proc/net/ipv6_route.
[[nodiscard]] std::optional<std::string> defaultInterface6(std::string_view routes);

}  // namespace tidewatch::platform
