#include "ui/texts/shaped_font.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QString>
#include <algorithm>
#include <cstdlib>
#include <functional>

#include "shell/themes/builtin_themes.h"
#include "ui/style/fonts.h"

namespace tidewatch {
namespace {

QImage drawn(double scale, const std::function<void(QPainter&)>& draw) {
    QImage image(400, 80, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(3, 50);
    painter.scale(scale, scale);
    painter.setPen(QColor(200, 100, 50));
    draw(painter);
    return image;
}

int maxDifference(const QImage& one, const QImage& other) {
    int difference = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            difference = std::max(difference, std::abs(qAlpha(one.pixel(x, y)) - qAlpha(other.pixel(x, y))));
        }
    }
    return difference;
}

TEST(ShapedFontTest, DrawsATextAsThePainterDoes) {
    for (const auto& theme :
         {ochreTheme(), editorialTheme(), minimalTheme(), hackerTheme(), liquidCrystalTheme()}) {
        SCOPED_TRACE(theme.id);
        for (const auto& spec : {theme.digitFont, theme.labelFont, theme.dailyTotalFont}) {
            const auto font = toQFont(spec);
            ShapedFont shaped(font);
            for (const QString text : {"7", "12:34:56", "HOY", "AVAW fi", "a\u0301 \u2605 \u05d0\u05d1 x"}) {
                for (const double scale : {0.5, 1.0, 1.7}) {
                    const auto plain = drawn(scale, [&](QPainter& painter) {
                        painter.setFont(font);
                        painter.drawText(QPointF(0.3, 0), text);
                    });
                    ASSERT_GT(maxDifference(plain, drawn(scale, [](QPainter&) {})), 64)
                        << "nothing was drawn";
                    // Letters are placed on quarters of a pixel; at an odd scale one may round to the next.
                    const int tolerance = scale == 1.7 ? 64 : 0;
                    const auto draw = [&](QPainter& painter) { shaped.draw(painter, {0.3, 0}, text); };
                    EXPECT_LE(maxDifference(drawn(scale, draw), plain), tolerance)
                        << text.toStdString() << " x " << scale;
                    EXPECT_EQ(drawn(scale, draw), drawn(scale, draw)) << "from its memory";
                }
            }
        }
    }
}

TEST(ShapedFontTest, MeasuresAsTheToolkitDoesHoweverManyTexts) {
    const auto font = toQFont({FontRole::sans, 20, FontWeight::regular});
    const QFontMetricsF metrics(font);
    ShapedFont shaped(font);
    for (int round = 0; round < 2; ++round) {
        for (int number = 0; number < 200; ++number) {
            const auto text = QString::number(number);
            ASSERT_EQ(shaped.advance(text), metrics.horizontalAdvance(text));
            const QChar character(static_cast<char16_t>(u'0' + number));
            ASSERT_EQ(shaped.advance(character), metrics.horizontalAdvance(character));
        }
    }
}

TEST(ShapedFontTest, NoDigitIsWiderThanTheWidest) {
    const auto font = toQFont({FontRole::serif, 20, FontWeight::regular});
    const QFontMetricsF metrics(font);
    ShapedFont shaped(font);
    double widest = 0;
    for (const QChar digit : QString("0123456789"))
        widest = std::max(widest, metrics.horizontalAdvance(digit));
    EXPECT_EQ(shaped.widestDigit(), widest);
}

}  // namespace
}  // namespace tidewatch
