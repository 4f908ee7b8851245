#pragma once

#include <QVariantMap>
#include <memory>
#include <mutex>
#include <string>

#include "platform/api/log.h"
#include "platform/api/preference_value.h"
#include "platform/api/preferences.h"
#include "platform/qt/private_settings.h"

namespace tidewatch::platform {

/// Preferences in an INI file: `brightlooms/tidewatch.conf` in the user's configuration directory. The file
/// contains strings, so every value is converted from a string. Changes within one turn of the main loop are
/// written together at its end. The file is private to its owner.
///
/// If the file, or its lock file, is not a regular file of reasonable size, it is left alone: values are kept
/// in memory only, which is logged once.
class QtPreferences final : public Preferences {
public:
    /// `configDirectory` is the user's, absolute.
    QtPreferences(const std::string& configDirectory, Log& log);
    ~QtPreferences() override;

    [[nodiscard]] bool contains(std::string_view key) const override;
    [[nodiscard]] bool boolean(std::string_view key) const override;
    [[nodiscard]] std::int64_t integer(std::string_view key) const override;
    [[nodiscard]] double real(std::string_view key) const override;
    [[nodiscard]] std::string text(std::string_view key) const override;
    void setBoolean(std::string_view key, bool value) override;
    void setInteger(std::string_view key, std::int64_t value) override;
    void setReal(std::string_view key, double value) override;
    void setText(std::string_view key, std::string_view value) override;
    void remove(std::string_view key) override;

    /// Writes changes now; for when the main loop does not run again.
    void sync();

private:
    [[nodiscard]] PreferenceValue value(std::string_view key) const;
    void set(std::string_view key, const QVariant& value);

    mutable std::mutex mutex_;
    std::unique_ptr<PrivateSettings> settings_;
    QVariantMap memory_;  // used instead of the file
};

}  // namespace tidewatch::platform
