#include "platform/qt/qt_preferences.h"

#include <QVariant>

namespace tidewatch::platform {

namespace {

QString name(std::string_view key) {
    return QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()));
}

}  // namespace

QtPreferences::QtPreferences()
    : settings_(QSettings::NativeFormat, QSettings::UserScope, "brightlooms", "tidewatch") {
    settings_.setFallbacksEnabled(false);
}

bool QtPreferences::contains(std::string_view key) const {
    const std::lock_guard lock(mutex_);
    return settings_.contains(name(key));
}

bool QtPreferences::boolean(std::string_view key) const {
    return asBoolean(value(key));
}
std::int64_t QtPreferences::integer(std::string_view key) const {
    return asInteger(value(key));
}
double QtPreferences::real(std::string_view key) const {
    return asReal(value(key));
}
std::string QtPreferences::text(std::string_view key) const {
    return asText(value(key));
}

void QtPreferences::setBoolean(std::string_view key, bool value) {
    set(key, value);
}
void QtPreferences::setInteger(std::string_view key, std::int64_t value) {
    set(key, qlonglong{value});
}
void QtPreferences::setReal(std::string_view key, double value) {
    set(key, value);
}

void QtPreferences::setText(std::string_view key, std::string_view value) {
    set(key, QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size())));
}

void QtPreferences::remove(std::string_view key) {
    const std::lock_guard lock(mutex_);
    settings_.remove(name(key));
}

PreferenceValue QtPreferences::value(std::string_view key) const {
    const std::lock_guard lock(mutex_);
    return settings_.value(name(key)).toString().toStdString();
}

void QtPreferences::set(std::string_view key, const QVariant& value) {
    const std::lock_guard lock(mutex_);
    settings_.setValue(name(key), value);
}

}  // namespace tidewatch::platform
