#include "system/views/sidebar/sys_overview_presenter.h"

#include <algorithm>
#include <array>
#include <utility>

#include "system/views/system_texts.h"
#include "ui/models/tab_presenter.h"
#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

/// What each row opens.
constexpr std::array panels{SysPanel::disk,    SysPanel::memory,  SysPanel::cpu,
                            SysPanel::network, SysPanel::devices, SysPanel::network};

SystemPanelRow diskRow(const SystemSnapshot& snap, const QString& unnamedVolume) {
    const auto* main = mainVolume(snap);
    return {.id = "Disco",
            .symbol = "internaldrive",
            .details = main ? volumeName(*main, unnamedVolume) : QString(),
            .value = main ? sizeText(main->freeBytes) + " libres" : QString("—"),
            .color = mainDiskColor(snap)};
}

SystemPanelRow networkRow(const SystemSnapshot& snap) {
    return {.id = "Red",
            .symbol = linkTexts(snap).symbol,
            .details = snap.netSsid ? nameText(*snap.netSsid) : text(snap.netType),
            .value = rateText(snap.netDownBps),
            .color = {}};
}

SystemPanelRow devicesRow(const SystemSnapshot& snap) {
    const auto external = std::ranges::count(snap.disks, false, &DiskVolume::isInternal);
    return {.id = "Dispositivos conectados",
            .symbol = "externaldrive",
            .details = {},
            .value = external == 0 ? "ninguno" : QString::number(external) + " externos",
            .color = {}};
}

}  // namespace

SysOverviewPresenter::SysOverviewPresenter(Sources sources)
    : SnapshotPresenter(sources.monitor, sources.watch),
      sources_(std::move(sources)),
      speedChanged_(sources_.speed.changed.connect([this] { updateIfVisible(); })) {}

void SysOverviewPresenter::visibilityChanged() {
    if (isVisible()) unnamedVolume_ = text(sources_.desktop.words().unnamedVolume);
    SnapshotPresenter::visibilityChanged();
    for (const auto& pane : sources_.below) setPaneVisible(pane, isVisible());
}

void SysOverviewPresenter::update() {
    rows_.setRows(rowsNow());
}

std::vector<SystemPanelRow> SysOverviewPresenter::rowsNow() const {
    const auto& now = snap();
    const double avgMbps = sources_.speed.avgMbps();
    return {
        diskRow(now, unnamedVolume_),
        {.id = "Memoria",
         .symbol = "memorychip",
         .details = {},
         .value = wholePercent(now.ramUsedFraction()),
         .color = {}},
        {.id = "CPU",
         .symbol = "cpu",
         .details = {},
         .value = wholePercent(now.cpuTotal) + " carga",
         .color = cpuColor(now.cpuTotal)},
        networkRow(now),
        devicesRow(now),
        {.id = "Test Speed",
         .symbol = "speedometer",
         .details = {},
         .value = avgMbps > 0 ? wholeNumber(avgMbps) + " Mbps" : QString("—"),
         .color = {}},
    };
}

void SysOverviewPresenter::select(int row) {
    if (row < 0 || row >= static_cast<int>(panels.size())) return;
    sources_.onSelect(panels.at(static_cast<std::size_t>(row)));
}

}  // namespace tidewatch
