#include "claude/log_line.h"

#include "claude/log_stamp.h"

namespace tidewatch {

std::optional<LogLine> LogLineReader::read(std::string_view line) {
    auto members = quick_.read(line);
    if (!members) members = strict_.read(line);
    if (!members) return std::nullopt;
    const auto& stamp = members->timestamp ? members->timestamp : members->createdAt;
    const auto& holder = members->message ? *members->message : members->top;
    if (!holder.usage || (holder.usage->output <= 0 && holder.usage->input < 1)) return std::nullopt;
    const auto date = parseLogStamp(stamp.value_or(""));
    if (!date) return std::nullopt;
    return LogLine{*date, *holder.usage, holder.model.value_or("unknown")};
}

}  // namespace tidewatch
