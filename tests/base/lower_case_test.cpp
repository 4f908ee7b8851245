#include "base/lower_case.h"

#include <gtest/gtest.h>

namespace tidewatch {
namespace {

TEST(LowerCaseTest, LowersLettersAndLeavesTheRest) {
    EXPECT_EQ(lowerCased("Visual Studio Code 2 [@`{"), "visual studio code 2 [@`{");
    EXPECT_EQ(lowerCased(""), "");
}

TEST(LowerCaseTest, KnowsTheLettersOfAllScripts) {
    EXPECT_EQ(lowerCased("DISEÑO · Música ÁÉÍÓÚÜ"), "diseño · música áéíóúü");
    EXPECT_EQ(lowerCased("Ž Ω Я Ș"), "ž ω я ș");
    EXPECT_EQ(lowerCased("日本 🎮 ß"), "日本 🎮 ß");
}

TEST(LowerCaseTest, LeavesInvalidUtf8) {
    EXPECT_EQ(lowerCased("A\xFF\xC3Z"), "a\xFF\xC3z");
    EXPECT_EQ(lowerCased("Ñ\xE2\x80"), "ñ\xE2\x80");
}

TEST(LowerCaseTest, ACharacterThatBreaksOffStaysAlsoBeforeAZeroByte) {
    using namespace std::string_literals;
    for (const auto& broken : {"\xC3"s, "\xE2\x82"s, "\xF0\x9F\x98"s}) {
        EXPECT_EQ(lowerCased("A" + broken), "a" + broken);
        EXPECT_EQ(lowerCased("A" + broken + "\0Z"s), "a" + broken + "\0z"s);
        EXPECT_EQ(lowerCased(broken + "\0"s), broken + "\0"s);
        EXPECT_EQ(lowerCased(broken + "Ñ"), broken + "ñ");
    }
}

}  // namespace
}  // namespace tidewatch
