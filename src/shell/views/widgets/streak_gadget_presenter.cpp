#include "shell/views/widgets/streak_gadget_presenter.h"

#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

constexpr auto none = "—";

}  // namespace

StreakGadgetPresenter::StreakGadgetPresenter(WidgetHub& hub)
    : GadgetPresenter(WidgetKind::streak, hub.changed), hub_(hub) {}

void StreakGadgetPresenter::update() {
    change(this, streak_, QString::number(hub_.streakDays()) + "d", &StreakGadgetPresenter::streakChanged);
    const auto& week = hub_.insights();
    change(this, figures_,
           Figures{.longest = week.longest ? timeText(week.longest->seconds) : none,
                   .peakHour = week.peakHour ? text(InsightsEngine::hourLabel(*week.peakHour)) : none,
                   .total = timeText(week.totalSeconds)},
           &StreakGadgetPresenter::insightsChanged);
}

}  // namespace tidewatch
