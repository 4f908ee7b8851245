#include "analysis/views/header_presenter.h"

#include "analysis/views/display_text.h"
#include "shell/themes/fathom.h"

namespace tidewatch {

HeaderPresenter::HeaderPresenter(DashboardModel& model, const InsightsEngine& dates)
    : model_(model), dates_(dates), modelChanged_(model.changed.connect([this](DashboardModel::Field field) {
          // The last assignment of a reload stands for all of it: midnight may have passed meanwhile.
          if (field == DashboardModel::Field::selectedDate || field == DashboardModel::Field::avg7Score)
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
