#include "shell/windows/file_name.h"

#include <gtest/gtest.h>

namespace tidewatch {
namespace {

TEST(WritableFileName, ANameThatFitsIsLeftAsItIs) {
    for (const auto* name :
         {"tidewatch-Pantalla 27\".csv", ".csv", "a\nb.csv", "..", "tidewatch-ñandú…\\*?.csv", ""}) {
        EXPECT_EQ(writableFileName(name), name);
    }
    const auto longest = std::string(251, 'x') + ".csv";
    EXPECT_EQ(writableFileName(longest), longest);
}

TEST(WritableFileName, ALongerOneIsCutBeforeItsExtension) {
    EXPECT_EQ(writableFileName(std::string(252, 'x') + ".csv"), std::string(251, 'x') + ".csv");
    EXPECT_EQ(writableFileName(std::string(50'000, 'x') + ".pdf"), std::string(251, 'x') + ".pdf");
}

TEST(WritableFileName, BytesAreCountedAndNoCharacterIsCut) {
    std::string name = "x";
    for (int i = 0; i < 200; ++i) name += "ñ";
    const auto writable = writableFileName(name + ".csv");
    EXPECT_EQ(writable, name.substr(0, 251) + ".csv");
    std::string families;
    for (int i = 0; i < 20; ++i) families += "👨‍👩‍👧‍👦";
    EXPECT_EQ(writableFileName(families + ".csv"), families.substr(0, 250) + ".csv");
}

TEST(WritableFileName, AnOverlongExtensionIsCutToo) {
    EXPECT_EQ(writableFileName("a." + std::string(300, 'x')), "a." + std::string(253, 'x'));
    EXPECT_EQ(writableFileName(std::string(300, 'x')), std::string(255, 'x'));
}

TEST(WritableFileName, ZeroBytesAreRemoved) {
    EXPECT_EQ(writableFileName(std::string("a\0b.csv", 7)), "ab.csv");
}

}  // namespace
}  // namespace tidewatch
