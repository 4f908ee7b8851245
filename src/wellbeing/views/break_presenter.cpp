#include "wellbeing/views/break_presenter.h"

#include <variant>

#include "ui/texts/qt_text.h"

namespace tidewatch {

BreakPresenter::BreakPresenter(BreakReminder& reminder, QObject* parent)
    : QObject(parent),
      reminder_(reminder),
      stretch_(reminder.stretch()),
      reason_(reminder.reason()),
      changed_(reminder.changed.connect([this] { sync(); })) {
    sync();
}

QString BreakPresenter::headline() const {
    const auto* longDay = std::get_if<LongDay>(&reason_);
    return longDay == nullptr ? QString("2 HORAS SENTADO") : QString("%1 HORAS HOY").arg(longDay->hours);
}

QString BreakPresenter::subline() const {
    return std::holds_alternative<LongDay>(reason_)
               ? QString("Jornada larga — cada hora vale parar 60 segundos.")
               : QString("Tu cuerpo te pide un descanso. 3 minutos cambian el día.");
}

QString BreakPresenter::icon() const {
    return text(textsOf(stretch_).icon);
}

QString BreakPresenter::title() const {
    return text(textsOf(stretch_).title);
}

QString BreakPresenter::instruction() const {
    return text(textsOf(stretch_).instruction);
}

QString BreakPresenter::motivational() const {
    return text(textsOf(stretch_).motivational);
}

QString BreakPresenter::dismissText() const {
    return "Listo · ya me paré";
}

void BreakPresenter::dismiss() {
    reminder_.dismissAlert();
}

void BreakPresenter::sync() {
    // Texts first, so that an alert never appears with those of the previous one.
    if (stretch_ != reminder_.stretch() || reason_ != reminder_.reason()) {
        stretch_ = reminder_.stretch();
        reason_ = reminder_.reason();
        Q_EMIT alertChanged();
    }
    if (const auto sitting = text(reminder_.sittingDisplay()) + " sentado continuo";
        sitting != sittingText_) {
        sittingText_ = sitting;
        Q_EMIT sittingTextChanged();
    }
    if (alertActive_ != reminder_.alertActive()) {
        alertActive_ = reminder_.alertActive();
        Q_EMIT alertActiveChanged();
    }
}

}  // namespace tidewatch
