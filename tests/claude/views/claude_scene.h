#pragma once

#include <QString>
#include <string>

#include "claude/claude_usage.h"
#include "claude/views/claude_card_presenter.h"
#include "claude/views/claude_presenter.h"
#include "tests/claude/claude_world.h"
#include "ui/ui_scene.h"

namespace tidewatch {

/// The Claude usage on a fake machine, with the presenters of the tab and of the card.
class ClaudeViewsWorld {
public:
    /// Months of believable usage, in logs and, of a month whose logs are gone, in the history's file.
    void useForMonths();

    /// One line, of the month before.
    void useLastMonth();

    /// Shows tab and card, and lets the scans that this starts end.
    void show();

    test::ClaudeWorld machine_;
    ClaudeUsage usage_{{.clock = machine_.clock,
                        .mainLoop = machine_.mainLoop,
                        .files = machine_.files,
                        .log = machine_.log,
                        .queues = machine_.queues,
                        .preferences = machine_.preferences}};
    ClaudePresenter tab_{{.clock = machine_.clock,
                          .mainLoop = machine_.mainLoop,
                          .monitor = usage_.monitor,
                          .settings = usage_.settings}};
    ClaudeCardPresenter card_{machine_.clock, machine_.mainLoop, usage_.monitor};
};

/// Their views, in any theme.
class ClaudeScene : public ClaudeViewsWorld, public UiScene {
public:
    /// Recreates the window with the tab, or with the card in a narrow column.
    void showTab(QSize size = {1100, 1000});
    void showCard();
};

}  // namespace tidewatch
