#include "ui/style/fonts.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QFontInfo>
#include <QTemporaryDir>

namespace tidewatch {
namespace {

TEST(Fonts, AMissingFolderMeansNoFonts) {
    EXPECT_EQ(registerFonts("/nowhere/Fonts"), 0);
}

TEST(Fonts, InvalidFontFilesAreIgnored) {
    QTemporaryDir folder;
    for (const auto* name : {"broken.ttf", "notes.txt", "other.otf"}) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("this is not a font");
    }
    EXPECT_EQ(registerFonts(folder.path()), 0);
}

TEST(Fonts, EveryTtfOfTheFolderIsRegisteredAndNothingElse) {
    const QString source = "/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf";
    ASSERT_TRUE(QFile::exists(source));
    QTemporaryDir folder;
    ASSERT_TRUE(QFile::copy(source, folder.filePath("One.ttf")));
    ASSERT_TRUE(QFile::copy(source, folder.filePath("Two.ttf")));
    ASSERT_TRUE(QFile::copy(source, folder.filePath("Three.otf")));
    EXPECT_EQ(registerFonts(folder.path()), 2);
}

TEST(Fonts, ASpecKeepsSizeAndWeight) {
    const auto font = toQFont({FontRole::mono, 42, FontWeight::light, Digits::monospaced});
    EXPECT_EQ(font.pixelSize(), 42);
    EXPECT_EQ(font.weight(), QFont::Light);
    EXPECT_EQ(font.hintingPreference(), QFont::PreferNoHinting);
    EXPECT_EQ(toQFont({FontRole::serif, 11, FontWeight::medium}).weight(), QFont::Medium);
    EXPECT_EQ(toQFont({FontRole::systemRounded, 38, FontWeight::semibold}).weight(), QFont::DemiBold);
}

TEST(Fonts, SizesAreWholePixelsAndAtLeastOne) {
    EXPECT_EQ(toQFont({FontRole::serif, 7.5, FontWeight::medium}).pixelSize(), 8);
    EXPECT_EQ(toQFont({FontRole::serif, 0.2, FontWeight::medium}).pixelSize(), 1);
}

TEST(Fonts, TheBrandsFamiliesComeFirst) {
    EXPECT_EQ(toQFont({FontRole::serif}).families().first(), "Fraunces");
    EXPECT_EQ(toQFont({FontRole::mono}).families().first(), "IBM Plex Mono");
    EXPECT_EQ(toQFont({FontRole::sans}).families().first(), "Inter");
}

TEST(Fonts, MissingFamiliesFallBackOnOnesOfTheSameKind) {
    for (const auto role : {FontRole::serif, FontRole::mono, FontRole::sans, FontRole::system,
                            FontRole::systemRounded, FontRole::systemSerif, FontRole::systemMonospaced}) {
        EXPECT_GE(toQFont({role}).families().size(), 2);
    }
    for (const auto role : {FontRole::mono, FontRole::systemMonospaced}) {
        EXPECT_TRUE(QFontInfo(toQFont({role})).fixedPitch());
    }
}

TEST(MonoNSFont, IsTheBrandsFamilyInItsCutsOrTheDesktopsOwnOfThatWeight) {
    const bool hasBrand = QFontDatabase::hasFamily("IBM Plex Mono");
    for (const auto weight : {FontWeight::light, FontWeight::regular, FontWeight::medium,
                              FontWeight::semibold, FontWeight::bold}) {
        const auto font = monoNSFont(12, weight);
        const bool cutIsMissing = weight == FontWeight::bold;
        const auto role = hasBrand ? FontRole::mono : FontRole::systemMonospaced;
        const auto expected = toQFont({role, 12, hasBrand && cutIsMissing ? FontWeight::regular : weight});
        EXPECT_EQ(font, expected);
        EXPECT_TRUE(QFontInfo(font).fixedPitch());
    }
}

}  // namespace
}  // namespace tidewatch
