#pragma once

#include "claude/claude_settings.h"
#include "claude/claude_usage_monitor.h"

namespace tidewatch {

/// The Claude usage and its settings, built together. Main thread only.
struct ClaudeUsage final {
    /// All of it must outlive the bundle.
    struct Dependencies {
        const platform::Clock& clock;
        platform::MainLoop& mainLoop;
        platform::FileSystem& files;
        platform::Log& log;
        platform::JobQueueFactory& queues;
        platform::Preferences& preferences;
    };

    explicit ClaudeUsage(const Dependencies& dependencies)
        : settings(dependencies.preferences),
          monitor({
              .clock = dependencies.clock,
              .mainLoop = dependencies.mainLoop,
              .files = dependencies.files,
              .log = dependencies.log,
              .queues = dependencies.queues,
              .settings = settings,
          }) {}

    ClaudeSettings settings;
    ClaudeUsageMonitor monitor;
};

}  // namespace tidewatch
