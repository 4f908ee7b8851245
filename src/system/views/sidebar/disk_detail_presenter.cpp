#include "system/views/sidebar/disk_detail_presenter.h"

#include "system/views/system_texts.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {

DiskDetailPresenter::DiskDetailPresenter(const Frame& frame, const platform::Desktop& desktop)
    : DetailPresenter(frame, "Disco", {.symbol = "internaldrive", .color = mainDiskColor({})}),
      desktop_(desktop) {}

void DiskDetailPresenter::visibilityChanged() {
    if (isVisible()) unnamedVolume_ = text(desktop_.words().unnamedVolume);
    DetailPresenter::visibilityChanged();
}

void DiskDetailPresenter::update() {
    setHeader({.symbol = "internaldrive", .color = mainDiskColor(snap())});
    const bool hadVolumes = hasVolumes();
    volumes_.setRows(volumeRows(snap(), VolumeKind::internal, unnamedVolume_));
    if (hasVolumes() != hadVolumes) Q_EMIT volumesChanged();
}

}  // namespace tidewatch
