#include "core/frontmost_rule.h"

#include "core/identifiers.h"

namespace tidewatch {

std::optional<AppId> bookableApplication(platform::FrontmostApplication& frontmost) {
    auto front = frontmost.current();
    if (!front || front->empty() || front->text() == ownApplicationId) return std::nullopt;
    return front;
}

}  // namespace tidewatch
