#include "system/views/snapshot_presenter.h"

namespace tidewatch {

SnapshotPresenter::SnapshotPresenter(SystemMonitor& monitor, SystemWatch& watch)
    : monitor_(monitor),
      watch_(watch),
      monitorChanged_(monitor.changed.connect([this] { updateIfVisible(); })) {}

void SnapshotPresenter::visibilityChanged() {
    token_ = isVisible() ? watch_.watch() : nullptr;
}

}  // namespace tidewatch
