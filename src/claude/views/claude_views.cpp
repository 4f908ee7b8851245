#include "claude/views/claude_views.h"

#include "analysis/dashboard_model.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {

ClaudeViews::ClaudeViews(const platform::Clock& clock, platform::MainLoop& mainLoop, ClaudeUsage& usage)
    : tab_({.clock = clock, .mainLoop = mainLoop, .monitor = usage.monitor, .settings = usage.settings}),
      card_(clock, mainLoop, usage.monitor) {}

std::vector<Pane> ClaudeViews::tabs() {
    const auto name = text(rawValue(DashboardTab::claude));
    return {
        {.id = name, .title = name, .view = viewUrl("Tidewatch.Claude", "ClaudeTab"), .presenter = &tab_}};
}

Pane ClaudeViews::card() {
    return {.id = "claude-card",
            .title = text(rawValue(DashboardTab::claude)),
            .view = viewUrl("Tidewatch.Claude", "ClaudeSidebarCard"),
            .presenter = &card_};
}

}  // namespace tidewatch
