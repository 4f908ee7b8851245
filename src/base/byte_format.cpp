#include "base/byte_format.h"

#include <fmt/format.h>

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <span>
#include <string_view>

namespace tidewatch {

namespace {

constexpr double step = 1024;
constexpr double firstWithoutDecimals = 100;

constexpr auto sizeUnits = std::to_array<std::string_view>({"B", "KB", "MB", "GB", "TB"});
constexpr auto rateUnits = std::to_array<std::string_view>({"B/s", "KB/s", "MB/s", "GB/s"});

std::string scaled(double value, std::span<const std::string_view> units) {
    std::size_t unit = 0;
    for (; value >= step && unit + 1 < units.size(); ++unit) value /= step;
    if (unit == 0 || value >= firstWithoutDecimals) return fmt::format("{:.0f} {}", value, units[unit]);
    return fmt::format("{:.1f} {}", value, units[unit]);
}

}  // namespace

std::string formatBytes(std::int64_t size) {
    return scaled(static_cast<double>(size), sizeUnits);
}

std::string formatBytes(std::uint64_t size) {
    if (size > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())) {
        std::fputs("Tidewatch: a size is out of range\n", stderr);
        std::abort();
    }
    return formatBytes(static_cast<std::int64_t>(size));
}

std::string formatRate(double bytesPerSecond) {
    return scaled(bytesPerSecond, rateUnits);
}

}  // namespace tidewatch
