#pragma once

#include "shell/views/widgets/arcade_gadget_presenter.h"
#include "shell/views/widgets/goals_gadget_presenter.h"
#include "shell/views/widgets/productivity_gadget_presenter.h"
#include "shell/views/widgets/project_gadget_presenter.h"
#include "shell/views/widgets/speed_gadget_presenter.h"
#include "shell/views/widgets/streak_gadget_presenter.h"
#include "shell/views/widgets/system_gadget_presenter.h"
#include "shell/views/widgets/top_apps_gadget_presenter.h"
#include "shell/widgets/widget_hub.h"

namespace tidewatch {

/// What the desktop's widgets show: for each the presenter of a WidgetContainer. Whoever shows one tells its
/// presenter when it appears and disappears. Main thread only.
class Gadgets final {
public:
    /// Both must outlive this object, which must outlive the views.
    Gadgets(WidgetHub& hub, const GamesPresenter::Sources& games);

    [[nodiscard]] GadgetPresenter& presenter(WidgetKind kind);

private:
    ProductivityGadgetPresenter productivity_;
    SystemGadgetPresenter system_;
    StreakGadgetPresenter streak_;
    GoalsGadgetPresenter goals_;
    SpeedGadgetPresenter speed_;
    ProjectGadgetPresenter project_;
    TopAppsGadgetPresenter topApps_;
    ArcadeGadgetPresenter arcade_;
};

}  // namespace tidewatch
