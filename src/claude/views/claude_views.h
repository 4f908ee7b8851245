#pragma once

#include <vector>

#include "claude/claude_usage.h"
#include "claude/views/claude_card_presenter.h"
#include "claude/views/claude_presenter.h"
#include "platform/api/clock.h"
#include "platform/api/main_loop.h"
#include "ui/models/pane.h"

namespace tidewatch {

/// What the statistics window shows of the Claude usage. Main thread only.
class ClaudeViews final {
public:
    /// All must outlive it.
    ClaudeViews(const platform::Clock& clock, platform::MainLoop& mainLoop, ClaudeUsage& usage);

    [[nodiscard]] std::vector<Pane> tabs();

    /// For a narrow column.
    [[nodiscard]] Pane card();

    [[nodiscard]] ClaudePresenter& tab() { return tab_; }

private:
    ClaudePresenter tab_;
    ClaudeCardPresenter card_;
};

}  // namespace tidewatch
