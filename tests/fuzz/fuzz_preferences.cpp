// A manually edited preference, read as every setting.

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>

#include "core/idle_option.h"
#include "core/settings.h"
#include "core/size_option.h"
#include "platform/api/preference_value.h"
#include "platform/fake/memory_preferences.h"
#include "tests/fuzz/fuzz_target.h"

namespace tidewatch::fuzz {
namespace {

constexpr std::array keys{"activeThemeID", "windowOriginX",        "windowOriginY", "windowVisible",
                          "sizeScale",     "idleThresholdSeconds", "dayStartHour"};

void requireNumbersThatAgree(const std::string& text) {
    const platform::PreferenceValue value(text);
    const double real = platform::asReal(value);
    const auto integer = platform::asInteger(value);
    require(platform::asText(value) == text, "a text is itself");
    require(std::isfinite(real), "a number is finite");
    require(platform::asBoolean(value) == (real != 0), "true is what is not 0");
    if (std::abs(real) < 1e15) {
        require(static_cast<double>(integer) == std::trunc(real), "the integer is the number cut off");
    }
    const bool mayBeNumber = text == "true" || text.find_first_of("0123456789") != std::string::npos;
    require(mayBeNumber || (real == 0 && integer == 0), "what spells no number is 0");
    require(platform::asReal(" " + text) == 0 && platform::asReal(text + " ") == 0,
            "a number is the whole of a text");
}

void requireSettingsInRange(const std::string& text) {
    platform::MemoryPreferences preferences;
    for (const char* key : keys) preferences.setText(key, text);
    const Settings settings(preferences);
    require(settings.activeThemeId() == text, "a theme's identifier is itself");
    const auto origin = settings.windowOrigin();
    require(origin && std::isfinite(origin->x) && std::isfinite(origin->y), "a place is finite");
    require(std::isfinite(settings.sizeScale()) && settings.sizeScale() > 0, "a size is above 0");
    require(settings.idleThresholdSeconds() > 0, "a threshold is above 0");
    require(settings.dayStartHour() >= 0 && settings.dayStartHour() <= 23,
            "a day starts at one of its hours");
    (void)settings.windowVisible();
}

}  // namespace

void check(std::string_view input) {
    const std::string text(input);
    requireNumbersThatAgree(text);
    requireSettingsInRange(text);
}

}  // namespace tidewatch::fuzz
