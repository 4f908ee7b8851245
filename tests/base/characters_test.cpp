#include "base/characters.h"

#include <gtest/gtest.h>

namespace tidewatch {
namespace {

const std::string family = "👨‍👩‍👧‍👦";  // four faces and three joiners
const std::string flag = "🇲🇽";
const std::string accented = "e\u0301";
const std::string hangul = "\u1112\u1161\u11AB";

TEST(CharactersTest, ALetterAndItsAccentAreOne) {
    EXPECT_EQ(firstCharacters(1, accented + accented), accented);
    EXPECT_EQ(firstCharacters(1, "ñandú"), "ñ");
}

TEST(CharactersTest, AFamilyAFlagAndASyllableAreOneEach) {
    const auto text = family + flag + hangul + "👍🏽" + "x";
    EXPECT_EQ(firstCharacters(1, text), family);
    EXPECT_EQ(firstCharacters(2, text), family + flag);
    EXPECT_EQ(firstCharacters(3, text), family + flag + hangul);
    EXPECT_EQ(firstCharacters(4, text), family + flag + hangul + "👍🏽");
}

TEST(CharactersTest, TwoFlagsAreTwo) {
    EXPECT_EQ(firstCharacters(1, flag + "🇪🇸"), flag);
}

TEST(CharactersTest, ATextWithNoMoreIsWhole) {
    EXPECT_EQ(firstCharacters(3, "abc"), "abc");
    EXPECT_EQ(firstCharacters(9, "abc"), "abc");
    EXPECT_EQ(firstCharacters(0, "abc"), "");
    EXPECT_EQ(firstCharacters(5, ""), "");
}

TEST(CharactersTest, EndlessMarksAreSplit) {
    std::string marked = "a";
    for (int i = 0; i < 1000; ++i) marked += "\u0301";
    EXPECT_EQ(firstCharacters(1, marked).size(), 1U + 31 * 2);
}

TEST(CharactersTest, EachByteOfInvalidUtf8IsOne) {
    EXPECT_EQ(firstCharacters(2, "\xFF\xC3x"), "\xFF\xC3");
    EXPECT_EQ(firstCharacters(1, "a\x80\x80"), "a");
    EXPECT_EQ(firstCharacters(2, "a\xE2\x80"), "a\xE2");
}

TEST(CharactersTest, ALimitInBytesSplitsNoCharacter) {
    EXPECT_EQ(charactersWithin(5, "ñandú"), "ñand");
    EXPECT_EQ(charactersWithin(6, "ñandú"), "ñand");
    EXPECT_EQ(charactersWithin(7, "ñandú"), "ñandú");
    EXPECT_EQ(charactersWithin(family.size(), "a" + family), "a");
    EXPECT_EQ(charactersWithin(family.size() + 1, "a" + family), "a" + family);
    EXPECT_EQ(charactersWithin(0, "a"), "");
}

TEST(CharactersTest, OnOneLineEveryRunOfWhiteSpaceIsOneBlank) {
    EXPECT_EQ(onOneLine("Corto\nde\r\n \tverano"), "Corto de verano");
    EXPECT_EQ(onOneLine("\u2028a\u2029\u0085b\u00A0c\u3000"), "a b c");
    EXPECT_EQ(onOneLine(std::string("a\0b\x1B[31mc", 9)), "a b [31mc");
    EXPECT_EQ(onOneLine(" \n "), "");
    EXPECT_EQ(onOneLine(""), "");
}

TEST(CharactersTest, OnOneLineJoinersMarksAndInvalidUtf8Stay) {
    EXPECT_EQ(onOneLine(family + "\n" + accented + "\xFF"), family + " " + accented + "\xFF");
}

}  // namespace
}  // namespace tidewatch
