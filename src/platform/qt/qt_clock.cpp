#include "platform/qt/qt_clock.h"

#include <QDateTime>
#include <QTimeZone>

namespace tidewatch::platform {

namespace {

class QtZone final : public TimeZone {
public:
    explicit QtZone(const QTimeZone& zone) : zone_(zone) {}

    [[nodiscard]] std::chrono::seconds utcOffset(Instant instant) const override {
        const auto time = QDateTime::fromMSecsSinceEpoch(instant.time_since_epoch().count(), Qt::UTC);
        return std::chrono::seconds(zone_.offsetFromUtc(time));
    }

private:
    QTimeZone zone_;
};

}  // namespace

Instant QtClock::now() const {
    return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
}

std::chrono::nanoseconds QtClock::monotonic() const {
    return std::chrono::steady_clock::now().time_since_epoch();
}

std::shared_ptr<const TimeZone> QtClock::timeZone() const {
    const auto zone = QTimeZone::systemTimeZone();
    return std::make_shared<QtZone>(zone.isValid() ? zone : QTimeZone::utc());
}

}  // namespace tidewatch::platform
