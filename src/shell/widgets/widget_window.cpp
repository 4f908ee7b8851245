#include "shell/widgets/widget_window.h"

#include <algorithm>
#include <string>

namespace tidewatch {

namespace {

PanelSize sizeOf(WidgetKind kind, const WidgetStore& store) {
    const auto base = defaultSize(kind);
    const auto scale = std::max(store.state(kind).scale, WidgetWindow::minScale);
    return {base.width * scale, base.height * scale};
}

FloatingPanel::Owner ownerOf(WidgetKind kind, const WidgetWindow::Dependencies& dependencies) {
    const double margin = WidgetWindow::margin + cascadeIndex(kind) * WidgetWindow::cascadeStep;
    return {
        .place = {.load = [kind, &store = dependencies.store] { return store.state(kind).place(); },
                  .save =
                      [kind, &store = dependencies.store](platform::Point origin) {
                          store.update(kind, [origin](WidgetState& state) {
                              state.x = origin.x;
                              state.y = origin.y;
                          });
                      }},
        .defaultPlace = [margin, &screens = dependencies.screens](
                            PanelSize size) { return topRightCorner(screens, size, margin); },
        .clicked =
            [kind, &broadcaster = dependencies.broadcaster] {
                broadcaster.post(WidgetClicked{std::string(rawValue(kind))});
            },
        .menuRequested = dependencies.openMenu,
    };
}

}  // namespace

WidgetWindow::WidgetWindow(WidgetKind kind, const Dependencies& dependencies)
    : window_(dependencies.surfaces.makeWidgetWindow(kind, sizeOf(kind, dependencies.store))),
      panel_(*window_, dependencies.screens, ownerOf(kind, dependencies)) {}

}  // namespace tidewatch
