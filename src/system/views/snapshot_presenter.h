#pragma once

#include <qqmlregistration.h>

#include "base/signal.h"
#include "system/system_monitor.h"
#include "system/views/system_watch.h"
#include "ui/models/tab_presenter.h"

namespace tidewatch {

/// The base of the presenters that show the machine's state: the monitor runs while one of them is visible.
/// Main thread only.
class SnapshotPresenter : public tidewatch::TabPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("What the presenters of the machine's state are")

protected:
    /// Both must outlive the presenter.
    SnapshotPresenter(SystemMonitor& monitor, SystemWatch& watch);

    [[nodiscard]] const SystemSnapshot& snap() const { return monitor_.snap(); }

    void visibilityChanged() override;

private:
    SystemMonitor& monitor_;
    SystemWatch& watch_;
    SystemWatch::Token token_;
    Connection monitorChanged_;
};

}  // namespace tidewatch
