#include "platform/fake/memory_preferences.h"

#include <utility>

namespace tidewatch::platform {

bool MemoryPreferences::contains(std::string_view key) const {
    const std::lock_guard lock(mutex_);
    return values_.contains(key);
}

bool MemoryPreferences::boolean(std::string_view key) const {
    return asBoolean(value(key));
}

std::int64_t MemoryPreferences::integer(std::string_view key) const {
    return asInteger(value(key));
}

double MemoryPreferences::real(std::string_view key) const {
    return asReal(value(key));
}

std::string MemoryPreferences::text(std::string_view key) const {
    return asText(value(key));
}

void MemoryPreferences::setBoolean(std::string_view key, bool value) {
    put(key, value);
}

void MemoryPreferences::setInteger(std::string_view key, std::int64_t value) {
    put(key, value);
}

void MemoryPreferences::setReal(std::string_view key, double value) {
    put(key, value);
}

void MemoryPreferences::setText(std::string_view key, std::string_view value) {
    put(key, std::string(value));
}

void MemoryPreferences::remove(std::string_view key) {
    const std::lock_guard lock(mutex_);
    if (const auto stored = values_.find(key); stored != values_.end()) values_.erase(stored);
}

void MemoryPreferences::put(std::string_view key, PreferenceValue value) {
    const std::lock_guard lock(mutex_);
    values_.insert_or_assign(std::string(key), std::move(value));
}

PreferenceValue MemoryPreferences::value(std::string_view key) const {
    const std::lock_guard lock(mutex_);
    const auto stored = values_.find(key);
    return stored == values_.end() ? PreferenceValue(std::string()) : stored->second;
}

}  // namespace tidewatch::platform
