#include "base/parse_real.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>

namespace tidewatch {
namespace {

TEST(ParseRealTest, ReadsDecimalNumbers) {
    EXPECT_EQ(parseReal("0"), 0.0);
    EXPECT_EQ(parseReal("0.33"), 0.33);
    EXPECT_EQ(parseReal("-12.5"), -12.5);
    EXPECT_EQ(parseReal("1e3"), 1000.0);
    EXPECT_EQ(parseReal("1E-3"), 0.001);
    EXPECT_EQ(parseReal("1.5e+2"), 150.0);
    EXPECT_EQ(parseReal(".5"), 0.5);
    EXPECT_EQ(parseReal("5."), 5.0);
}

TEST(ParseRealTest, GivesBackWhatWasPrintedToTheLastBit) {
    for (const double number : {0.1, 1.0 / 3, 1e23, 123456789.12345678, std::numeric_limits<double>::max(),
                                std::numeric_limits<double>::min()}) {
        char text[64];
        std::snprintf(text, sizeof text, "%.17g", number);
        EXPECT_EQ(parseReal(text), number) << text;
    }
}

TEST(ParseRealTest, RejectsEverythingElse) {
    for (const auto* text :
         {"",    "-",    ".",  "-.",  "e3",  "1e",   "1e+", "+1",       " 1",    "1 ",
          "1,5", "0x10", "1x", "--1", "inf", "-inf", "nan", "infinity", "1.2.3", "1e3.5"}) {
        EXPECT_EQ(parseReal(text), std::nullopt) << text;
    }
    EXPECT_EQ(parseReal(std::string_view("1\0", 2)), std::nullopt);
}

TEST(ParseRealTest, RejectsNumbersOutOfRange) {
    EXPECT_EQ(parseReal("1e400"), std::nullopt);
    EXPECT_EQ(parseReal("-1e400"), std::nullopt);
}

}  // namespace
}  // namespace tidewatch
