#include "shell/views/widgets/goals_gadget_presenter.h"

#include <algorithm>

#include "shell/themes/ochre_palette.h"
#include "ui/style/qt_color.h"
#include "ui/symbols/stars.h"
#include "ui/texts/display_text.h"

namespace tidewatch {

GoalsGadgetPresenter::GoalsGadgetPresenter(WidgetHub& hub)
    : GadgetPresenter(WidgetKind::goals, hub.changed), hub_(hub) {}

QStringList GoalsGadgetPresenter::stars() const {
    return starSymbols(reward_.starsToday);
}

QList<QColor> GoalsGadgetPresenter::starColors() const {
    return QList<QColor>(starCount, toQColor(ochre_palette::amber));
}

QString GoalsGadgetPresenter::starsAccessibleText() const {
    return starsText(reward_.starsToday);
}

QString GoalsGadgetPresenter::monthAccessibleText() const {
    return monthStars() + " estrellas " + monthTitle();
}

void GoalsGadgetPresenter::update() {
    change(this, reward_, Reward{hub_.streakDays(), hub_.starsToday(), hub_.starsMonth()},
           &GoalsGadgetPresenter::rewardChanged);
    const auto today = hub_.goals().front();
    change(this, goal_,
           Goal{timeText(today.currentSeconds) + " / " + timeText(today.targetSeconds),
                std::clamp(today.fraction, 0.0, 1.0)},
           &GoalsGadgetPresenter::goalChanged);
}

}  // namespace tidewatch
