#include "ui/texts/display_text.h"

#include <gtest/gtest.h>

#include <string>

namespace tidewatch {
namespace {

std::string repeated(std::string_view part, int count) {
    std::string whole;
    for (int i = 0; i < count; ++i) whole += part;
    return whole;
}

TEST(NameText, AnOrdinaryNameStaysAsItIs) {
    EXPECT_EQ(nameText("Sitio web · Año 2026 👩‍💻"), "Sitio web · Año 2026 👩‍💻");
    EXPECT_EQ(nameText(" con margen "), " con margen ");
}

TEST(NameText, MarkupStaysPlainText) {
    EXPECT_EQ(nameText("<b>uno</b> &lt;"), "<b>uno</b> &lt;");
}

TEST(NameText, BreaksOfLinesAndControlsAreBlanks) {
    EXPECT_EQ(nameText("uno\ndos\r\ntres\tcuatro"), "uno dos  tres cuatro");
    EXPECT_EQ(nameText("uno\u2028dos\u2029tres\u0085cuatro\u001b[1m"), "uno dos tres cuatro [1m");
}

TEST(NameText, AnInvisibleNameIsReplaced) {
    for (const auto* nothing : {"", " ", "\n\n", "\t", "\u200b\u200e", "\u00a0\u2003"}) {
        EXPECT_EQ(nameText(nothing), "Sin nombre") << nothing;
    }
}

TEST(NameText, NamesAreLimitedToTwoHundredCharacters) {
    EXPECT_EQ(nameText(repeated("a", 200)), QString(200, 'a'));
    EXPECT_EQ(nameText(repeated("a", 201)), QString(200, 'a') + "…");
    EXPECT_EQ(nameText(repeated("a", 50'000)), QString(200, 'a') + "…");
}

TEST(NameText, NoCharacterIsSplit) {
    // Eleven bytes and five code units each, but one visible character.
    const std::string coder = "👩‍💻";
    EXPECT_EQ(nameText(repeated(coder, 201)), QString::fromStdString(repeated(coder, 200)) + "…");
    const std::string accented = "e\u0301";
    EXPECT_EQ(nameText(repeated(accented, 201)), QString::fromStdString(repeated(accented, 200)) + "…");
}

TEST(NameText, AnEndlessCharacterIsCutAfterAnAccent) {
    const auto name = nameText("e" + repeated("\u0301", 50'000));
    EXPECT_LT(name.size(), 5000);
    EXPECT_TRUE(name.endsWith("…"));
    EXPECT_FALSE(name.contains(QChar::ReplacementCharacter));
}

TEST(NameText, InvalidUtf8IsShownAsReplacementCharacters) {
    EXPECT_EQ(nameText("uno\xff"), QString("uno") + QChar(QChar::ReplacementCharacter));
    EXPECT_TRUE(nameText(repeated("\xbf", 50'000)).size() <= 201);
}

}  // namespace
}  // namespace tidewatch
