#include "base/trim.h"

#include <gtest/gtest.h>

namespace tidewatch {
namespace {

TEST(TrimTest, RemovesWhiteSpaceAndLineBreaksAtBothEnds) {
    EXPECT_EQ(trimmed("  a b\t\r\n"), "a b");
    EXPECT_EQ(trimmed("\v\f a"), "a");
    EXPECT_EQ(trimmed("a"), "a");
}

TEST(TrimTest, ATextOfSpacesBecomesEmpty) {
    EXPECT_EQ(trimmed(""), "");
    EXPECT_EQ(trimmed(" \n\t "), "");
    EXPECT_EQ(trimmed("\u00A0\u3000\u2003\u2028\u0085"), "");
}

TEST(TrimTest, RemovesWideAndNonBreakingSpaces) {
    EXPECT_EQ(trimmed("\u00A0 Diseño \u3000"), "Diseño");
}

TEST(TrimTest, TrimmedOfBlanksKeepsLineBreaks) {
    EXPECT_EQ(trimmedOfBlanks(" \t\u00A0a \t b\u3000\t "), "a \t b");
    EXPECT_EQ(trimmedOfBlanks(" \n a \r\n "), "\n a \r\n");
    EXPECT_EQ(trimmedOfBlanks(" \u2028\u0085 "), "\u2028\u0085");
    EXPECT_EQ(trimmedOfBlanks(" \t "), "");
}

TEST(TrimTest, KeepsCharactersThatShareBytesWithASpace) {
    EXPECT_EQ(trimmed("\u0105"), "\u0105");
    EXPECT_EQ(trimmed("¡à!…"), "¡à!…");
    EXPECT_EQ(trimmed("\xA0"), "\xA0");
    EXPECT_EQ(trimmed("\xE2\x80"), "\xE2\x80");
}

}  // namespace
}  // namespace tidewatch
