#include "core/settings.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/fake/memory_preferences.h"

namespace tidewatch {
namespace {

using platform::Point;
using platform::PreferenceValue;

struct SettingsTest : testing::Test {
    platform::MemoryPreferences preferences;
    Settings settings{preferences};

    void put(std::string_view key, PreferenceValue value) { preferences.put(key, std::move(value)); }
};

TEST_F(SettingsTest, AFreshSystemHasTheDefaults) {
    EXPECT_EQ(settings.activeThemeId(), "ochre");
    EXPECT_TRUE(settings.windowVisible());
    EXPECT_EQ(settings.sizeScale(), 0.25);
    EXPECT_EQ(settings.idleThresholdSeconds(), 300);
    EXPECT_EQ(settings.dayStartHour(), 0);
    EXPECT_EQ(settings.windowOrigin(), std::nullopt);
}

TEST_F(SettingsTest, DayStartHourStoredAs30ReadsAs23) {
    put("dayStartHour", std::int64_t(30));
    EXPECT_EQ(settings.dayStartHour(), 23);
}

TEST_F(SettingsTest, DayStartHourStoredAsMinus2ReadsAs0) {
    put("dayStartHour", std::int64_t(-2));
    EXPECT_EQ(settings.dayStartHour(), 0);
}

TEST_F(SettingsTest, DayStartHourBeyondAnIntReadsAsTheNearerEnd) {
    put("dayStartHour", std::int64_t(1) << 40);
    EXPECT_EQ(settings.dayStartHour(), 23);
    put("dayStartHour", std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(settings.dayStartHour(), 0);
}

TEST_F(SettingsTest, SettingDayStartHourTo24Stores23) {
    settings.setDayStartHour(24);
    EXPECT_EQ(preferences.integer("dayStartHour"), 23);
    settings.setDayStartHour(-1);
    EXPECT_TRUE(preferences.contains("dayStartHour"));
    EXPECT_EQ(preferences.integer("dayStartHour"), 0);
}

TEST_F(SettingsTest, SizeScaleStoredAs0ReadsAsTheDefault) {
    settings.setSizeScale(0);
    EXPECT_EQ(settings.sizeScale(), 0.25);
    settings.setSizeScale(-1);
    EXPECT_EQ(settings.sizeScale(), 0.25);
    settings.setSizeScale(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(settings.sizeScale(), 0.25);
}

TEST_F(SettingsTest, SizeScaleNotInTheListReadsAsItIs) {
    settings.setSizeScale(0.33);
    EXPECT_EQ(settings.sizeScale(), 0.33);
}

TEST_F(SettingsTest, IdleThresholdNotAboveZeroReadsAsTheDefault) {
    settings.setIdleThresholdSeconds(0);
    EXPECT_EQ(settings.idleThresholdSeconds(), 300);
    settings.setIdleThresholdSeconds(-60);
    EXPECT_EQ(settings.idleThresholdSeconds(), 300);
    settings.setIdleThresholdSeconds(1);
    EXPECT_EQ(settings.idleThresholdSeconds(), 1);
}

TEST_F(SettingsTest, WindowOriginWithOnlyTheXKeyReadsAsNothing) {
    preferences.setReal("windowOriginX", 10);
    EXPECT_EQ(settings.windowOrigin(), std::nullopt);
    preferences.remove("windowOriginX");
    preferences.setReal("windowOriginY", 10);
    EXPECT_EQ(settings.windowOrigin(), std::nullopt);
}

TEST_F(SettingsTest, WindowOriginStoresBothCoordinatesAndNothingRemovesBoth) {
    settings.setWindowOrigin(Point{-12.5, 0});
    EXPECT_EQ(settings.windowOrigin(), (Point{-12.5, 0}));
    settings.setWindowOrigin(std::nullopt);
    EXPECT_FALSE(preferences.contains("windowOriginX"));
    EXPECT_FALSE(preferences.contains("windowOriginY"));
}

TEST_F(SettingsTest, WindowVisibleIsTrueOnlyByAbsence) {
    settings.setWindowVisible(false);
    EXPECT_FALSE(settings.windowVisible());
    settings.setWindowVisible(true);
    EXPECT_TRUE(settings.windowVisible());
}

TEST_F(SettingsTest, AWrittenValueIsReadBackAtOnce) {
    settings.setActiveThemeId("noir");
    settings.setIdleThresholdSeconds(900);
    settings.setDayStartHour(5);
    EXPECT_EQ(settings.activeThemeId(), "noir");
    EXPECT_EQ(settings.idleThresholdSeconds(), 900);
    EXPECT_EQ(settings.dayStartHour(), 5);
}

TEST_F(SettingsTest, ValuesOfTheWrongTypeFallUnderTheSameRules) {
    put("idleThresholdSeconds", "soon");
    put("sizeScale", "big");
    put("dayStartHour", "dawn");
    put("windowVisible", "perhaps");
    put("activeThemeID", std::int64_t(7));
    put("windowOriginX", "left");
    put("windowOriginY", true);
    EXPECT_EQ(settings.idleThresholdSeconds(), 300);
    EXPECT_EQ(settings.sizeScale(), 0.25);
    EXPECT_EQ(settings.dayStartHour(), 0);
    EXPECT_FALSE(settings.windowVisible());
    EXPECT_EQ(settings.activeThemeId(), "");
    EXPECT_EQ(settings.windowOrigin(), (Point{0, 1}));
}

TEST_F(SettingsTest, NumbersOfAnotherKindAreConverted) {
    put("idleThresholdSeconds", 90.9);
    put("sizeScale", std::int64_t(5));
    put("dayStartHour", true);
    put("windowVisible", 0.0);
    EXPECT_EQ(settings.idleThresholdSeconds(), 90);
    EXPECT_EQ(settings.sizeScale(), 5.0);
    EXPECT_EQ(settings.dayStartHour(), 1);
    EXPECT_FALSE(settings.windowVisible());
}

}  // namespace
}  // namespace tidewatch
