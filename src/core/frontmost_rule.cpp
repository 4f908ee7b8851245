#include "core/frontmost_rule.h"

#include "core/identifiers.h"

namespace tidewatch {

std::optional<AppId> bookableApplication(const platform::Workspace& workspace) {
    auto front = workspace.frontmostApplication();
    if (!front || front->empty() || front->text() == ownApplicationId) return std::nullopt;
    return front;
}

}  // namespace tidewatch
