#include "system/views/system_watch.h"

namespace tidewatch {

SystemWatch::Token SystemWatch::watch() {
    if (auto token = current_.lock()) return token;
    Token token(this, [](SystemWatch* self) { self->stop(); });
    current_ = token;
    apply();
    return token;
}

void SystemWatch::setPaused(bool paused) {
    paused_ = paused;
    apply();
}

void SystemWatch::apply() {
    if (!paused_ && !current_.expired()) {
        monitor_.start();
    } else {
        monitor_.stop();
    }
}

void SystemWatch::stop() {
    apply();
    if (speed_.phase() == SpeedTester::Phase::downloading) speed_.cancel();
}

}  // namespace tidewatch
