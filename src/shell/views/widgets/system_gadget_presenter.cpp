#include "shell/views/widgets/system_gadget_presenter.h"

#include <vector>

#include "shell/themes/ochre_palette.h"
#include "system/views/system_texts.h"
#include "ui/style/qt_color.h"
#include "ui/texts/display_text.h"

namespace tidewatch {

SystemGadgetPresenter::SystemGadgetPresenter(SystemMonitor& monitor)
    : GadgetPresenter(WidgetKind::system, monitor.changed), monitor_(monitor) {}

QString SystemGadgetPresenter::networkAccessibleText() const {
    return network_.name + ": descarga " + network_.download + ", subida " + network_.upload;
}

void SystemGadgetPresenter::update() {
    const auto& snap = monitor_.snap();
    std::vector<GadgetBar> bars{
        {.id = "CPU",
         .value = wholePercent(snap.cpuTotal),
         .fraction = snap.cpuTotal,
         .color = cpuColor(snap.cpuTotal)},
        {.id = "RAM",
         .value = sizeText(static_cast<std::int64_t>(snap.ramUsed)),
         .fraction = snap.ramUsedFraction(),
         .color = toQColor(ochre_palette::neutral)},
    };
    if (!snap.disks.empty()) {
        const auto& disk = snap.disks.front();
        bars.push_back({.id = "Disco",
                        .value = sizeText(disk.freeBytes) + " libre",
                        .fraction = disk.usedFraction(),
                        .color = diskColor(disk.usedFraction())});
    }
    bars_.setRows(bars);
    const bool wireless = snap.netType == "Wi-Fi";
    change(this, network_,
           Network{.symbol = linkTexts(snap).symbol,
                   .name = wireless ? "Wi-Fi" : "Red",
                   .download = rateText(snap.netDownBps),
                   .upload = rateText(snap.netUpBps)},
           &SystemGadgetPresenter::networkChanged);
}

}  // namespace tidewatch
