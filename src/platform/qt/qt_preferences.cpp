#include "platform/qt/qt_preferences.h"

#include <QVariant>

namespace tidewatch::platform {

namespace {

QString name(std::string_view key) {
    return QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()));
}

}  // namespace

QtPreferences::QtPreferences(const std::string& configDirectory, Log& log) {
    const auto path = QString::fromStdString(configDirectory) + "/brightlooms/tidewatch.conf";
    if (PrivateSettings::canBeOpened(path)) {
        settings_ = std::make_unique<PrivateSettings>(path);
    } else {
        log.warning("Tidewatch: " + path.toStdString() +
                    " is no ordinary file: the settings start from their defaults and are not kept");
    }
}

QtPreferences::~QtPreferences() {
    // The toolkit's destructor would open the file again.
    const bool closes = !settings_ || PrivateSettings::canBeOpened(settings_->fileName());
    if (!closes) static_cast<void>(settings_.release());
}

bool QtPreferences::contains(std::string_view key) const {
    const std::lock_guard lock(mutex_);
    return settings_ ? settings_->contains(name(key)) : memory_.contains(name(key));
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
    if (settings_) {
        settings_->remove(name(key));
    } else {
        memory_.remove(name(key));
    }
}

void QtPreferences::sync() {
    const std::lock_guard lock(mutex_);
    if (settings_) settings_->sync();
}

PreferenceValue QtPreferences::value(std::string_view key) const {
    const std::lock_guard lock(mutex_);
    const auto value = settings_ ? settings_->value(name(key)) : memory_.value(name(key));
    return value.toString().toStdString();
}

void QtPreferences::set(std::string_view key, const QVariant& value) {
    const std::lock_guard lock(mutex_);
    if (settings_) {
        settings_->setValue(name(key), value);
    } else {
        memory_[name(key)] = value;
    }
}

}  // namespace tidewatch::platform
