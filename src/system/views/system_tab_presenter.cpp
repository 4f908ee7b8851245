#include "system/views/system_tab_presenter.h"

#include "system/views/system_texts.h"
#include "ui/texts/display_text.h"

namespace tidewatch {

SystemTabPresenter::SystemTabPresenter(SystemMonitor& monitor, SpeedTester& speed, SystemWatch& watch,
                                       const platform::Desktop& desktop)
    : SnapshotPresenter(monitor, watch), desktop_(desktop), speedTest_(speed) {}

QString SystemTabPresenter::gpuText() const {
    return hasGpu() ? "Utilización del procesador gráfico" : "No disponible en este equipo";
}

void SystemTabPresenter::visibilityChanged() {
    if (isVisible()) unnamedVolume_ = text(desktop_.words().unnamedVolume);
    SnapshotPresenter::visibilityChanged();
    speedTest_.setVisible(isVisible());
}

void SystemTabPresenter::update() {
    const auto& now = snap();
    cpuParts_.setRows({{.id = "usuario", .value = wholePercent(now.cpuUser)},
                       {.id = "sistema", .value = wholePercent(now.cpuSystem)}});
    memoryParts_.setRows({{.id = "activa", .value = gigabytes(now.ramActive)},
                          {.id = "wired", .value = gigabytes(now.ramWired)},
                          {.id = "compr.", .value = gigabytes(now.ramCompressed)},
                          {.id = "libre", .value = gigabytes(now.ramFree)},
                          {.id = "swap", .value = gigabytes(now.swapUsed)}});
    disks_.setRows(volumeRows(now, VolumeKind::internal, unnamedVolume_));
    change(this, figures_, figuresOf(now), &SystemTabPresenter::figuresChanged);
}

SystemTabPresenter::Figures SystemTabPresenter::figuresOf(const SystemSnapshot& snap) {
    const auto link = linkTexts(snap);
    return {
        .cpu = wholePercent(snap.cpuTotal),
        .cpuFraction = snap.cpuTotal,
        .cpuColor = tidewatch::cpuColor(snap.cpuTotal),
        .memory = wholePercent(snap.ramUsedFraction()),
        .memoryFraction = snap.ramUsedFraction(),
        .memoryUse = gigabytes(snap.ramUsed) + " de " + gigabytes(snap.ramTotal),
        .networkSymbol = link.symbol,
        .network = link.name,
        .signal = snap.netRssi ? signalText(*snap.netRssi) : QString(),
        .download = rateText(snap.netDownBps),
        .upload = rateText(snap.netUpBps),
        .hasGpu = snap.gpuUsage.has_value(),
        .gpu = snap.gpuUsage ? wholePercent(*snap.gpuUsage) : QString(),
        .gpuFraction = snap.gpuUsage.value_or(0),
        .hasDisks = mainVolume(snap) != nullptr,
    };
}

}  // namespace tidewatch
