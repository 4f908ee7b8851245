#include "platform/linux/net_interfaces.h"

#include <unistd.h>

#include <algorithm>
#include <cstdint>

#include "platform/linux/kernel_file.h"
#include "platform/linux/text_fields.h"

namespace tidewatch::platform {

namespace {

constexpr unsigned upFlag = 1;  // IFF_UP
constexpr std::uint32_t routeIsUp = 1;
constexpr std::uint32_t routeRejects = 0x200;
constexpr std::string_view anyAddress6 = "00000000000000000000000000000000";

// Takes `count` fields and returns the last one.
std::string_view takeFields(std::string_view& line, int count) {
    for (; count > 1; --count) static_cast<void>(takeField(line));
    return takeField(line);
}

std::optional<std::uint32_t> takeHex(std::string_view& line) {
    return wholeNumber<std::uint32_t>(takeField(line), 16);
}

bool isUp(const std::string& directory) {
    const auto text = readKernelFile(directory + "/flags");
    if (!text || !text->starts_with("0x")) return false;
    auto line = std::string_view(*text).substr(2);
    line = line.substr(0, line.find('\n'));
    return wholeNumber<unsigned>(line, 16).value_or(0) & upFlag;
}

// Lines of candidates; the lowest metric wins, the first of equal ones.
class BestRoute final {
public:
    void offer(std::string_view name, std::uint32_t metric) {
        if (name.empty() || (best_ && metric >= metric_)) return;
        best_ = name;
        metric_ = metric;
    }
    [[nodiscard]] std::optional<std::string> best() const { return best_; }

private:
    std::optional<std::string> best_;
    std::uint32_t metric_ = 0;
};

}  // namespace

std::vector<NetInterface> parseNetDev(std::string_view netDev) {
    std::vector<NetInterface> interfaces;
    while (const auto line = takeLine(netDev)) {
        // An alias has a colon in its name.
        const auto colon = line->rfind(':');
        if (colon == std::string_view::npos) continue;
        auto head = line->substr(0, colon);
        const auto name = takeField(head);
        auto columns = line->substr(colon + 1);
        const auto received = takeNumber<std::uint64_t>(columns);
        // The ninth column: seven others about receiving come before it.
        const auto sent = wholeNumber<std::uint64_t>(takeFields(columns, 8));
        // Another column follows, so the number is whole.
        if (name.empty() || !received || !sent || takeField(columns).empty()) continue;
        interfaces.push_back({std::string(name), {.received = *received, .sent = *sent}});
    }
    return interfaces;
}

InterfaceBytes totalBytes(std::string_view netDev, const std::string& netDirectory) {
    auto interfaces = parseNetDev(netDev);
    std::erase_if(interfaces, [](const auto& each) { return each.name.starts_with("lo"); });
    const auto isHardware = [&](const NetInterface& each) {
        return ::access((netDirectory + "/" + each.name + "/device").c_str(), F_OK) == 0;
    };
    const auto virtualOnes = std::stable_partition(interfaces.begin(), interfaces.end(), isHardware);
    if (virtualOnes != interfaces.begin()) interfaces.erase(virtualOnes, interfaces.end());
    InterfaceBytes sum;
    for (const auto& [name, bytes] : interfaces) {
        if (!isUp(netDirectory + "/" + name)) continue;
        sum.received += bytes.received;
        sum.sent += bytes.sent;
    }
    return sum;
}

std::optional<std::string> defaultInterface(std::string_view routes) {
    // Iface Destination Gateway Flags RefCnt Use Metric Mask ...; addresses in hexadecimal.
    BestRoute route;
    while (auto line = takeLine(routes)) {
        const auto name = takeField(*line);
        const auto destination = takeHex(*line);
        const auto flags = wholeNumber<std::uint32_t>(takeFields(*line, 2), 16);
        const auto metric = wholeNumber<std::uint32_t>(takeFields(*line, 3));
        const auto mask = takeHex(*line);
        if (destination != 0u || mask != 0u || !flags || !metric) continue;
        if ((*flags & routeIsUp) && !(*flags & routeRejects)) route.offer(name, *metric);
    }
    return route.best();
}

std::optional<std::string> defaultInterface6(std::string_view routes) {
    // Destination, its prefix, source, its prefix, next hop, metric, references, uses, flags, interface.
    BestRoute route;
    while (auto line = takeLine(routes)) {
        const auto destination = takeField(*line);
        const auto prefix = takeHex(*line);
        const auto metric = wholeNumber<std::uint32_t>(takeFields(*line, 4), 16);
        const auto flags = wholeNumber<std::uint32_t>(takeFields(*line, 3), 16);
        const auto name = takeField(*line);
        if (destination != anyAddress6 || prefix != 0u || !metric || !flags || name == "lo") continue;
        if ((*flags & routeIsUp) && !(*flags & routeRejects)) route.offer(name, *metric);
    }
    return route.best();
}

}  // namespace tidewatch::platform
