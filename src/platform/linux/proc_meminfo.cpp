#include "platform/linux/proc_meminfo.h"

#include <algorithm>
#include <array>
#include <limits>

#include "platform/linux/text_fields.h"

namespace tidewatch::platform {

namespace {

struct Figures {
    using Value = std::optional<std::uint64_t>;
    Value total, free, available, buffers, cached, slab, stacks, pageTables, unevictable, zswap, swapTotal,
        swapFree;
};

struct Row {
    std::string_view key;
    Figures::Value Figures::*value;
};

constexpr auto rows = std::to_array<Row>({
    {"MemTotal:", &Figures::total},
    {"MemFree:", &Figures::free},
    {"MemAvailable:", &Figures::available},
    {"Buffers:", &Figures::buffers},
    {"Cached:", &Figures::cached},
    {"SUnreclaim:", &Figures::slab},
    {"KernelStack:", &Figures::stacks},
    {"PageTables:", &Figures::pageTables},
    {"Unevictable:", &Figures::unevictable},
    {"Zswap:", &Figures::zswap},
    {"SwapTotal:", &Figures::swapTotal},
    {"SwapFree:", &Figures::swapFree},
});

std::optional<std::uint64_t> takeBytes(std::string_view& line) {
    constexpr std::uint64_t kilobyte = 1024;
    const auto kilobytes = takeNumber<std::uint64_t>(line);
    if (!kilobytes || takeField(line) != "kB") return std::nullopt;
    if (*kilobytes > std::numeric_limits<std::uint64_t>::max() / kilobyte) return std::nullopt;
    return *kilobytes * kilobyte;
}

Figures figuresOf(std::string_view meminfo) {
    Figures figures;
    while (auto line = takeLine(meminfo)) {
        const auto key = takeField(*line);
        const auto* row = std::ranges::find(rows, key, &Row::key);
        if (row != rows.end()) figures.*(row->value) = takeBytes(*line);
    }
    // Kernels before 3.14 do not estimate it.
    if (!figures.available && figures.free && figures.buffers && figures.cached)
        figures.available = *figures.free + *figures.buffers + *figures.cached;
    return figures;
}

// 0 instead of a negative difference.
std::uint64_t less(std::uint64_t amount, std::uint64_t part) {
    return amount - std::min(amount, part);
}

}  // namespace

MemoryReading parseMemory(std::string_view meminfo, std::uint64_t zram) {
    const auto figures = figuresOf(meminfo);
    MemoryReading reading{.total = figures.total.value_or(0)};
    if (figures.total && figures.free && figures.available) {
        MemoryUsage usage;
        usage.free = *figures.free;
        usage.wired = figures.slab.value_or(0) + figures.stacks.value_or(0) + figures.pageTables.value_or(0) +
                      figures.unevictable.value_or(0);
        usage.compressed = figures.zswap.value_or(0) + zram;
        usage.active = less(less(less(*figures.total, *figures.available), usage.wired), usage.compressed);
        reading.usage = usage;
    }
    if (figures.swapTotal && figures.swapFree) reading.swapUsed = less(*figures.swapTotal, *figures.swapFree);
    return reading;
}

std::optional<std::uint64_t> parseZramMemory(std::string_view mmStat) {
    // The third column; the two before it are the sizes of what is stored, before and after compression.
    static_cast<void>(takeField(mmStat));
    static_cast<void>(takeField(mmStat));
    auto line = mmStat.substr(0, mmStat.find('\n'));
    return takeNumber<std::uint64_t>(line);
}

}  // namespace tidewatch::platform
