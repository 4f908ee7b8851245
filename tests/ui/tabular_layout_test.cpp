#include "ui/texts/tabular_layout.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <cmath>

#include "shell/themes/builtin_themes.h"
#include "ui/style/fonts.h"

namespace tidewatch {
namespace {

QFont proportionalFont() {
    return toQFont({FontRole::sans, 38, FontWeight::regular});
}

TabularOptions equalDigits(double maximumWidth = 0) {
    return {.digits = Digits::monospaced, .maximumWidth = maximumWidth};
}

TabularLine layOut(const QString& text, const QFont& font, const TabularOptions& options) {
    ShapedFont shaped(font);
    return layOutTabular(text, shaped, options);
}

TEST(TabularLayout, EqualDigitsMakeEveryClockEquallyWide) {
    const auto font = proportionalFont();
    const double ones = layOut("11:11:11", font, equalDigits()).width;
    const double eights = layOut("08:00:58", font, equalDigits()).width;
    EXPECT_DOUBLE_EQ(ones, eights);
    EXPECT_GT(ones, layOut("11:11:11", font, {}).width);
}

TEST(TabularLayout, ADigitStandsInTheMiddleOfItsCell) {
    const auto font = proportionalFont();
    const QFontMetricsF metrics(font);
    const auto line = layOut("1", font, equalDigits());
    ASSERT_EQ(line.runs.size(), 1u);
    EXPECT_NEAR(line.runs[0].x, (line.width - metrics.horizontalAdvance(u'1')) / 2, 1e-9);
    EXPECT_GT(line.runs[0].x, 0);
}

TEST(TabularLayout, CellsAreWholePixelsOfTheScreen) {
    auto options = equalDigits();
    options.screenPixel = 4;
    const auto line = layOut("00", proportionalFont(), options);
    ASSERT_EQ(line.runs.size(), 2u);
    const double cell = line.runs[1].x - line.runs[0].x;
    EXPECT_NEAR(std::fmod(cell, 4.0), 0, 1e-9);
    EXPECT_GT(cell, 0);
}

TEST(TabularLayout, WithoutEqualDigitsTheLineIsOneRun) {
    const auto line = layOut("11:11", proportionalFont(), {});
    ASSERT_EQ(line.runs.size(), 1u);
    EXPECT_EQ(line.runs[0].text, "11:11");
}

TEST(TabularLayout, TheSpacingAfterTheLastLetterIsNotPartOfTheLine) {
    auto font = proportionalFont();
    const double plain = layOut("FATHOM", font, {}).width;
    font.setLetterSpacing(QFont::AbsoluteSpacing, 5.6);
    // The toolkit counts in 64ths of a pixel.
    EXPECT_NEAR(layOut("FATHOM", font, {}).width, plain + 5 * 5.6, 6.0 / 64);
}

TEST(TabularLayout, AWordGapTakesThePlaceOfTheFontsBlank) {
    const auto font = proportionalFont();
    const QFontMetricsF metrics(font);
    const double words = metrics.horizontalAdvance("ab") + metrics.horizontalAdvance("cd");
    EXPECT_NEAR(layOut("ab cd", font, {.wordGap = 6}).width, words + 6, 1e-9);
}

TEST(TabularLayout, AnEmptyLineTakesNothing) {
    const auto line = layOut("", proportionalFont(), equalDigits(100));
    EXPECT_EQ(line.width, 0);
    EXPECT_EQ(line.shrink, 1);
    EXPECT_TRUE(line.runs.empty());
}

TEST(TabularLayout, ALineThatFitsIsLeftAsItIs) {
    const auto font = proportionalFont();
    const double natural = layOut("00:00:00", font, equalDigits()).width;
    const auto line = layOut("00:00:00", font, equalDigits(natural));
    EXPECT_DOUBLE_EQ(line.width, natural);
    EXPECT_EQ(line.shrink, 1);
}

TEST(TabularLayout, ALineThatIsALittleTooWideDrawsItsColonsCloserOnly) {
    const auto font = proportionalFont();
    const double natural = layOut("00:00:00", font, equalDigits()).width;
    const auto line = layOut("00:00:00", font, equalDigits(natural - 1));
    EXPECT_LE(line.width, natural - 1);
    EXPECT_EQ(line.shrink, 1);
}

TEST(TabularLayout, ALineThatIsFarTooWideIsDrawnSmaller) {
    const auto font = proportionalFont();
    const auto line = layOut("100:00:00", font, equalDigits(60));
    EXPECT_LT(line.shrink, 1);
    EXPECT_NEAR(line.width * line.shrink, 60, 1e-6);
}

TEST(TabularLayout, AHundredHoursFitIntoThePanelOfEveryTheme) {
    for (const auto& theme :
         {ochreTheme(), editorialTheme(), minimalTheme(), hackerTheme(), liquidCrystalTheme()}) {
        SCOPED_TRACE(theme.id);
        const double room = theme.size.width - theme.padding.leading - theme.padding.trailing;
        for (const double scale : {0.1, 0.25, 0.5, 0.75, 1.0, 5.0}) {
            auto options = equalDigits(room);
            options.screenPixel = 1 / scale;
            const auto line = layOut("100:00:00", toQFont(theme.digitFont), options);
            EXPECT_LE(line.width * line.shrink, room + 1e-6) << "at " << scale;
        }
    }
}

}  // namespace
}  // namespace tidewatch
