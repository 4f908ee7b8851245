#include "platform/api/preference_value.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/fake/memory_preferences.h"

namespace tidewatch::platform {
namespace {

using Value = PreferenceValue;
constexpr auto maxInteger = std::numeric_limits<std::int64_t>::max();

TEST(PreferenceValue, TextsThatSpellANumberReadAsIt) {
    EXPECT_EQ(asInteger(Value("300")), 300);
    EXPECT_EQ(asInteger(Value("-2")), -2);
    EXPECT_EQ(asInteger(Value("9223372036854775807")), maxInteger);
    EXPECT_EQ(asInteger(Value("2.9")), 2);
    EXPECT_EQ(asReal(Value("0.33")), 0.33);
    EXPECT_EQ(asReal(Value("1e3")), 1000);
    EXPECT_TRUE(asBoolean(Value("1")));
    EXPECT_FALSE(asBoolean(Value("0")));
}

TEST(PreferenceValue, TextsThatSpellABooleanReadAsIt) {
    EXPECT_TRUE(asBoolean(Value("true")));
    EXPECT_FALSE(asBoolean(Value("false")));
    EXPECT_EQ(asInteger(Value("true")), 1);
    EXPECT_EQ(asReal(Value("false")), 0);
}

TEST(PreferenceValue, OtherTextsReadAsZero) {
    for (const char* text : {"", "soon", "5 min", " 5", "0x10", "inf", "nan", "TRUE", "1e999"}) {
        EXPECT_EQ(asInteger(Value(text)), 0) << text;
        EXPECT_EQ(asReal(Value(text)), 0) << text;
        EXPECT_FALSE(asBoolean(Value(text))) << text;
        EXPECT_EQ(asText(Value(text)), text);
    }
}

TEST(PreferenceValue, NumbersReadAsBooleansByBeingOtherThanZero) {
    EXPECT_TRUE(asBoolean(Value(std::int64_t(-1))));
    EXPECT_FALSE(asBoolean(Value(std::int64_t(0))));
    EXPECT_TRUE(asBoolean(Value(0.5)));
    EXPECT_FALSE(asBoolean(Value(0.0)));
}

TEST(PreferenceValue, BooleansReadAsOneOrZero) {
    EXPECT_EQ(asInteger(Value(true)), 1);
    EXPECT_EQ(asReal(Value(true)), 1);
    EXPECT_EQ(asInteger(Value(false)), 0);
}

TEST(PreferenceValue, FractionsReadAsIntegersByTruncation) {
    EXPECT_EQ(asInteger(Value(2.9)), 2);
    EXPECT_EQ(asInteger(Value(-2.9)), -2);
}

TEST(PreferenceValue, NumbersThatNoIntegerHoldsReadAsZero) {
    EXPECT_EQ(asInteger(Value(1e300)), 0);
    EXPECT_EQ(asInteger(Value(-1e300)), 0);
    EXPECT_EQ(asInteger(Value(0x1p63)), 0);
    EXPECT_EQ(asInteger(Value(std::numeric_limits<double>::quiet_NaN())), 0);
    EXPECT_EQ(asInteger(Value("9223372036854775808")), 0);
}

TEST(PreferenceValue, OnlyTextsReadAsText) {
    EXPECT_EQ(asText(Value("noir")), "noir");
    EXPECT_EQ(asText(Value(std::int64_t(7))), "");
    EXPECT_EQ(asText(Value(true)), "");
}

TEST(MemoryPreferences, DistinguishAMissingKeyFromAStoredZero) {
    MemoryPreferences preferences;
    EXPECT_FALSE(preferences.contains("hour"));
    EXPECT_EQ(preferences.integer("hour"), 0);
    preferences.setInteger("hour", 0);
    EXPECT_TRUE(preferences.contains("hour"));
    preferences.remove("hour");
    EXPECT_FALSE(preferences.contains("hour"));
    preferences.remove("hour");
}

TEST(MemoryPreferences, ReturnWhatWasWritten) {
    MemoryPreferences preferences;
    preferences.setBoolean("b", true);
    preferences.setReal("r", 0.1);
    preferences.setText("t", "ochre");
    EXPECT_TRUE(preferences.boolean("b"));
    EXPECT_EQ(preferences.real("r"), 0.1);
    EXPECT_EQ(preferences.text("t"), "ochre");
}

}  // namespace
}  // namespace tidewatch::platform
