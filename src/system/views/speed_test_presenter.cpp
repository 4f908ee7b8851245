#include "system/views/speed_test_presenter.h"

#include "system/views/speed_figures.h"
#include "system/views/system_texts.h"
#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

using Phase = SpeedTester::Phase;

double shownSpeed(const SpeedTester& speed) {
    switch (speed.phase()) {
        case Phase::done:
            return speed.avgMbps();
        case Phase::downloading:
            return speed.currentMbps();
        case Phase::idle:
        case Phase::failed:
            break;
    }
    return 0;
}

QString buttonOf(Phase phase) {
    switch (phase) {
        case Phase::downloading:
            return "Detener";
        case Phase::failed:
            return "Reintentar";
        case Phase::idle:
        case Phase::done:
            break;
    }
    return "Probar";
}

}  // namespace

SpeedTestPresenter::SpeedTestPresenter(SpeedTester& speed)
    : speed_(speed), speedChanged_(speed.changed.connect([this] { updateIfVisible(); })) {}

QString SpeedTestPresenter::valueText() const {
    return wholeNumber(figures_.value);
}

QString SpeedTestPresenter::progressText() const {
    return wholePercent(figures_.progress);
}

void SpeedTestPresenter::press() {
    startOrCancel(speed_);
}

void SpeedTestPresenter::update() {
    stats_.setRows(speedFigures(speed_, "PROMEDIO"));
    const Figures now{
        .button = buttonOf(speed_.phase()),
        .value = shownSpeed(speed_),
        .scaleMax = scaleMaxOf(speed_),
        .status = statusNow(),
        .isRunning = speed_.phase() == Phase::downloading,
        .progress = speed_.progress(),
    };
    change(this, figures_, now, &SpeedTestPresenter::figuresChanged);
}

QString SpeedTestPresenter::statusNow() const {
    switch (speed_.phase()) {
        case Phase::idle:
            return "toca Probar para medir";
        case Phase::downloading:
            if (speed_.currentMbps() == 0) return "midiendo latencia…";
            return wholePercent(speed_.progress()) + " · " + wholeNumber(speed_.currentMbps()) +
                   " Mbps en vivo";
        case Phase::done:
            return "promedio " + wholeNumber(speed_.avgMbps()) + " · pico " + wholeNumber(speed_.peakMbps()) +
                   " Mbps · ping " + wholeNumber(speed_.pingMs()) + " ms";
        case Phase::failed:
            return "Error: " + text(speed_.errorMessage());
    }
    return {};
}

}  // namespace tidewatch
