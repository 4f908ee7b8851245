#include "shell/widgets/widget_manager.h"

#include <utility>

namespace tidewatch {

WidgetManager::WidgetManager(Dependencies dependencies)
    : dependencies_(std::move(dependencies)),
      clicks_(dependencies_.broadcaster.observe<WidgetClicked>([this](const WidgetClicked& click) {
          dependencies_.mainLoop.post([self = std::weak_ptr(self_), kind = click.kind] {
              if (const auto alive = self.lock()) (*alive)->widgetClicked(kind);
          });
      })) {}

void WidgetManager::restoreVisible() {
    for (const auto kind : allWidgetKinds()) {
        if (dependencies_.windows.store.state(kind).visible && !isVisible(kind)) open(kind);
    }
}

void WidgetManager::show(WidgetKind kind) {
    if (const auto shown = windows_.find(kind); shown != windows_.end()) {
        shown->second.orderFrontRegardless();
    } else {
        open(kind);
    }
}

void WidgetManager::open(WidgetKind kind) {
    dependencies_.hub.start();
    if (kind == WidgetKind::system) dependencies_.hub.monitor().start();
    windows_.try_emplace(kind, kind, dependencies_.windows).first->second.orderFrontRegardless();
    setVisible(kind, true);
}

void WidgetManager::hide(WidgetKind kind) {
    if (const auto shown = windows_.find(kind); shown != windows_.end()) {
        shown->second.orderOut();
        windows_.erase(shown);
    }
    setVisible(kind, false);
    if (kind == WidgetKind::system) dependencies_.hub.monitor().stop();
    if (windows_.empty()) dependencies_.hub.stop();
}

void WidgetManager::toggle(WidgetKind kind) {
    if (isVisible(kind)) {
        hide(kind);
    } else {
        show(kind);
    }
}

void WidgetManager::setVisible(WidgetKind kind, bool visible) {
    dependencies_.windows.store.update(kind, [visible](WidgetState& state) { state.visible = visible; });
}

/// The arcade's surface is for play.
void WidgetManager::widgetClicked(const std::string& kind) {
    if (kind == rawValue(WidgetKind::arcade) || dependencies_.statistics.isVisible()) return;
    dependencies_.statistics.showWindow();
}

}  // namespace tidewatch
