#pragma once

#include <QObject>
#include <memory>
#include <vector>

#include "wellbeing/games/key_monitor.h"

namespace tidewatch {

/// Observes the key presses in all windows of the program, except while a menu is open. Needs the application
/// object. Main thread only.
class WindowKeyMonitor final : public QObject, public KeyMonitor {
public:
    WindowKeyMonitor();

    [[nodiscard]] std::unique_ptr<KeyObservation> observe(Handler handler) override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool isConsumed(GameKey key);

    std::vector<std::weak_ptr<Handler>> handlers_;
};

}  // namespace tidewatch
