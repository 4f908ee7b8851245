#include "shell/views/widgets/speed_gadget_presenter.h"

#include "system/views/speed_figures.h"
#include "system/views/system_texts.h"
#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

using Phase = SpeedTester::Phase;

QString statusOf(const SpeedTester& speed) {
    switch (speed.phase()) {
        case Phase::idle:
            return "toca Probar";
        case Phase::downloading:
            return wholePercent(speed.progress());
        case Phase::done:
            return "ping " + wholeNumber(speed.pingMs()) + " ms";
        case Phase::failed:
            return "error de red";
    }
    return {};
}

}  // namespace

SpeedGadgetPresenter::SpeedGadgetPresenter(SpeedTester& speed)
    : GadgetPresenter(WidgetKind::speed, speed.changed), speed_(speed) {}

QString SpeedGadgetPresenter::valueText() const {
    return wholeNumber(figures_.value);
}

void SpeedGadgetPresenter::press() {
    startOrCancel(speed_);
}

void SpeedGadgetPresenter::update() {
    const Figures now{
        .value = speed_.phase() == Phase::done ? speed_.peakMbps() : speed_.currentMbps(),
        .scaleMax = scaleMaxOf(speed_),
        .status = statusOf(speed_),
        .isRunning = speed_.phase() == Phase::downloading,
    };
    change(this, figures_, now, &SpeedGadgetPresenter::figuresChanged);
}

}  // namespace tidewatch
