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

/// Preferences in an INI file: `brightlooms/tidewatch.conf` under the user's configuration directory. What
/// the file holds is text, so every value is read by the rules for texts. Values that are set within one turn
/// of the main loop reach the disk together, at its end. The file is for its owner alone.
///
/// What is there under the name of the file, or of its lock, and is no ordinary file of a sensible size is
/// left alone: then values live in memory only, and the log says so once.
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

    /// Brings what was set to the disk now; for when the main loop will not turn again.
    void sync();

private:
    [[nodiscard]] PreferenceValue value(std::string_view key) const;
    void set(std::string_view key, const QVariant& value);

    mutable std::mutex mutex_;
    std::unique_ptr<PrivateSettings> settings_;
    QVariantMap memory_;  // in the place of the file
};

}  // namespace tidewatch::platform
