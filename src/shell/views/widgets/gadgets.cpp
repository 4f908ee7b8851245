#include "shell/views/widgets/gadgets.h"

namespace tidewatch {

Gadgets::Gadgets(WidgetHub& hub, const GamesPresenter::Sources& games)
    : productivity_(hub),
      system_(hub.monitor()),
      streak_(hub),
      goals_(hub),
      speed_(hub.speed()),
      project_(hub),
      topApps_(hub),
      arcade_(games) {}

GadgetPresenter& Gadgets::presenter(WidgetKind kind) {
    switch (kind) {
        case WidgetKind::productivity:
            return productivity_;
        case WidgetKind::system:
            return system_;
        case WidgetKind::streak:
            return streak_;
        case WidgetKind::goals:
            return goals_;
        case WidgetKind::speed:
            return speed_;
        case WidgetKind::project:
            return project_;
        case WidgetKind::topApps:
            return topApps_;
        case WidgetKind::arcade:
            break;
    }
    return arcade_;
}

}  // namespace tidewatch
