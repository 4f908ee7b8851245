#include "system/views/sidebar/network_detail_presenter.h"

#include "shell/themes/dashboard_style.h"
#include "system/views/speed_figures.h"
#include "system/views/system_texts.h"
#include "ui/style/qt_color.h"
#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

QColor headerColor() {
    return toQColor(DashboardStyle::tierNeutral);
}

}  // namespace

NetworkDetailPresenter::NetworkDetailPresenter(const Frame& frame, SpeedTester& speed)
    : DetailPresenter(frame, "Red", {.symbol = "network", .color = headerColor()}),
      speed_(speed),
      speedConnection_(speed.changed.connect([this] {
          if (isVisible()) updateSpeed();
      })) {}

NetworkDetailPresenter::Link NetworkDetailPresenter::linkOf(const SystemSnapshot& snap) {
    Link link{.download = rateText(snap.netDownBps),
              .upload = rateText(snap.netUpBps),
              .name = linkTexts(snap).name,
              .details = {}};
    if (snap.netRssi) {
        link.details = signalText(*snap.netRssi) + " — " + signalQuality(*snap.netRssi);
    } else if (snap.netType == "Ethernet") {
        link.details = "Conexión física segura";
    }
    return link;
}

void NetworkDetailPresenter::update() {
    setHeader({.symbol = linkTexts(snap()).symbol, .color = headerColor()});
    change(this, link_, linkOf(snap()), &NetworkDetailPresenter::linkChanged);
    updateSpeed();
}

void NetworkDetailPresenter::updateSpeed() {
    stats_.setRows(speedFigures(speed_, "BAJADA"));
    capabilities_.setRows(capabilityRows(speed_.avgMbps()));
    Q_EMIT speedChanged();
}

QString NetworkDetailPresenter::status() const {
    if (speed_.phase() == SpeedTester::Phase::failed) return "Error: " + text(speed_.errorMessage());
    if (!isRunning()) return {};
    if (speed_.progress() == 0) return "conectando…";
    return wholeNumber(speed_.currentMbps()) + " Mbps · " + wholePercent(speed_.progress());
}

void NetworkDetailPresenter::press() {
    startOrCancel(speed_);
}

}  // namespace tidewatch
