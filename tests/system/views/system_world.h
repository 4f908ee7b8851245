#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "system/machine_overview.h"
#include "system/views/system_views.h"
#include "tests/support/fake_world.h"

namespace tidewatch {

/// The machine's state on a fake machine, with all presenters of its views.
class SystemViewsWorld {
public:
    SystemViewsWorld() = default;

    static constexpr std::int64_t gigabyte = 1024 * 1024 * 1024;

    /// A laptop at work: wireless, two internal volumes and one stick, eight busy processes.
    void useBelievableMachine();
    /// Its files: large ones, old ones and folders.
    void useBelievableFiles();

    /// In the next sample, this much of the processors' time has gone there; 0 to 1.
    void useProcessors(double user, double system);
    /// In the next sample, this much has gone through the network.
    void transfer(std::uint64_t received, std::uint64_t sent);

    /// The volumes change, as far as the next sample sees.
    void setVolumes(std::vector<platform::MountedVolume> volumes);

    /// Shows the tab "Sistema" and the sidebar; two samples are taken.
    void show();
    /// Until the next sample.
    void awaitSample() { machine_.mainLoop.runFor(SystemMonitor::defaultInterval); }

    /// A speed test up to the request for the download.
    void startDownload();
    /// The download receives this share of its bytes in this time, while the machine receives as much.
    void download(double share, std::chrono::milliseconds time);
    /// A whole test of an 80 MB download in `time`.
    void measureSpeed(std::chrono::milliseconds time);

    /// Answers the last question with yes.
    void accept();

    test::FakeWorld machine_;
    MachineOverview overview_{{
        .clock = machine_.clock,
        .mainLoop = machine_.mainLoop,
        .files = machine_.files,
        .log = machine_.log,
        .randomness = machine_.randomness,
        .queues = machine_.queues,
        .counters = machine_.counters,
        .volumes = machine_.volumes,
        .ejection = machine_.ejection,
        .running = machine_.running,
        .http = machine_.http,
        .userFolders = machine_.userFolders,
        .desktop = machine_.desktop,
        .trash = machine_.trash,
    }};
    std::vector<SystemQuestion> questions_;
    std::vector<std::string> warnings_;  ///< title and text
    std::vector<Pane> belowOverview_;
    SystemViews views_{machine_.clock,
                       overview_,
                       {.confirm =
                            [this](const SystemQuestion& question, std::function<void()> accepted) {
                                questions_.push_back(question);
                                accepted_ = std::move(accepted);
                            },
                        .warn = [this](const std::string& title,
                                       const std::string& text) { warnings_.push_back(title + "|" + text); }},
                       belowOverview_};

    SystemTabPresenter& tab_ = views_.systemTab();
    DiskTabPresenter& disk_ = views_.diskTab();
    SidebarPresenter& sidebar_ = views_.sidebarPanels();

private:
    std::function<void()> accepted_;
    double user_ = 0;  ///< ticks
    double system_ = 0;
    double idle_ = 0;
};

}  // namespace tidewatch
