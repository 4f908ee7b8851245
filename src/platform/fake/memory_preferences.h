#pragma once

#include <map>
#include <mutex>
#include <string>

#include "platform/api/preference_value.h"
#include "platform/api/preferences.h"

namespace tidewatch::platform {

/// Preferences in memory. Thread-safe.
class MemoryPreferences final : public Preferences {
public:
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

    /// Stores a value of any type under any key, like a manual edit of the file.
    void put(std::string_view key, PreferenceValue value);

private:
    [[nodiscard]] PreferenceValue value(std::string_view key) const;

    mutable std::mutex mutex_;
    std::map<std::string, PreferenceValue, std::less<>> values_;
};

}  // namespace tidewatch::platform
