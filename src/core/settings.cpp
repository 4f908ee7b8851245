#include "core/settings.h"

#include <algorithm>

namespace tidewatch {
namespace {

namespace key {
constexpr std::string_view activeThemeId = "activeThemeID";
constexpr std::string_view windowOriginX = "windowOriginX";
constexpr std::string_view windowOriginY = "windowOriginY";
constexpr std::string_view windowVisible = "windowVisible";
constexpr std::string_view sizeScale = "sizeScale";
constexpr std::string_view idleThresholdSeconds = "idleThresholdSeconds";
constexpr std::string_view dayStartHour = "dayStartHour";
}  // namespace key

constexpr std::string_view defaultThemeId = "ochre";
constexpr double defaultSizeScale = 0.25;
constexpr std::int64_t defaultIdleThresholdSeconds = 300;
constexpr std::int64_t lastHour = 23;

}  // namespace

std::string Settings::activeThemeId() const {
    if (!preferences_.contains(key::activeThemeId)) return std::string(defaultThemeId);
    return preferences_.text(key::activeThemeId);
}

void Settings::setActiveThemeId(std::string_view id) {
    preferences_.setText(key::activeThemeId, id);
}

std::optional<platform::Point> Settings::windowOrigin() const {
    if (!preferences_.contains(key::windowOriginX) || !preferences_.contains(key::windowOriginY)) {
        return std::nullopt;
    }
    return platform::Point{preferences_.real(key::windowOriginX), preferences_.real(key::windowOriginY)};
}

void Settings::setWindowOrigin(std::optional<platform::Point> origin) {
    if (origin) {
        preferences_.setReal(key::windowOriginX, origin->x);
        preferences_.setReal(key::windowOriginY, origin->y);
    } else {
        preferences_.remove(key::windowOriginX);
        preferences_.remove(key::windowOriginY);
    }
}

bool Settings::windowVisible() const {
    return !preferences_.contains(key::windowVisible) || preferences_.boolean(key::windowVisible);
}

void Settings::setWindowVisible(bool visible) {
    preferences_.setBoolean(key::windowVisible, visible);
}

double Settings::sizeScale() const {
    const double stored = preferences_.real(key::sizeScale);
    return stored > 0 ? stored : defaultSizeScale;
}

void Settings::setSizeScale(double scale) {
    preferences_.setReal(key::sizeScale, scale);
}

std::int64_t Settings::idleThresholdSeconds() const {
    const auto stored = preferences_.integer(key::idleThresholdSeconds);
    return stored > 0 ? stored : defaultIdleThresholdSeconds;
}

void Settings::setIdleThresholdSeconds(std::int64_t seconds) {
    preferences_.setInteger(key::idleThresholdSeconds, seconds);
}

int Settings::dayStartHour() const {
    const auto stored = preferences_.integer(key::dayStartHour);
    return static_cast<int>(std::clamp<std::int64_t>(stored, 0, lastHour));
}

void Settings::setDayStartHour(int hour) {
    preferences_.setInteger(key::dayStartHour, std::clamp<std::int64_t>(hour, 0, lastHour));
}

}  // namespace tidewatch
