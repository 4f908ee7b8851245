#include "platform/linux/proc_stat.h"

#include <array>

#include "platform/linux/text_fields.h"

namespace tidewatch::platform {

std::optional<CpuTimes> parseCpuTimes(std::string_view stat) {
    // Without its line feed the line may be cut off.
    const auto end = stat.find('\n');
    if (end == std::string_view::npos) return std::nullopt;
    auto line = stat.substr(0, end);
    if (takeField(line) != "cpu") return std::nullopt;
    enum { user, nice, system, idle, waiting, interrupts, softInterrupts, columns };
    std::array<std::uint64_t, columns> times{};
    for (std::size_t column = 0; column < times.size(); ++column) {
        const auto field = takeField(line);
        // The columns after the fourth came later.
        if (field.empty() && column > idle) break;
        const auto time = wholeNumber<std::uint64_t>(field);
        if (!time) return std::nullopt;
        times[column] = *time;
    }
    return CpuTimes{.user = times[user],
                    .nice = times[nice],
                    .system = times[system] + times[interrupts] + times[softInterrupts],
                    .idle = times[idle] + times[waiting]};
}

CpuTicks cpuTicks(const CpuTimes& times) {
    return {.user = static_cast<std::uint32_t>(times.user),
            .system = static_cast<std::uint32_t>(times.system),
            .idle = static_cast<std::uint32_t>(times.idle),
            .nice = static_cast<std::uint32_t>(times.nice)};
}

}  // namespace tidewatch::platform
