#include "analysis/views/header_presenter.h"

#include "shell/themes/fathom.h"
#include "ui/texts/display_text.h"

namespace tidewatch {

HeaderPresenter::HeaderPresenter(DashboardModel& model, const InsightsEngine& dates)
    : model_(model), dates_(dates), modelChanged_(model.changed.connect([this](DashboardModel::Field field) {
          using Field = DashboardModel::Field;
          // The score is the last assignment of a reload: the window may be opened again after midnight.
          if (field == Field::selectedDate || field == Field::isSelectedToday || field == Field::avg7Score)
              update();
      })) {
    update();
}

QString HeaderPresenter::brand() const {
    return text(fathom::wordmark);
}

QString HeaderPresenter::tagline() const {
    return "Marca tu tiempo";
}

void HeaderPresenter::previousDay() {
    model_.previousDay();
}

void HeaderPresenter::nextDay() {
    model_.nextDay();
}

void HeaderPresenter::today() {
    model_.today();
}

void HeaderPresenter::update() {
    const auto date = text(dates_.shortDate(model_.selectedDate()));
    const bool canGoForward = !model_.isSelectedToday();
    if (date == date_ && canGoForward == canGoForward_) return;
    date_ = date;
    canGoForward_ = canGoForward;
    Q_EMIT dateChanged();
}

}  // namespace tidewatch
