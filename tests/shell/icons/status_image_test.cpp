#include "shell/icons/status_image.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace tidewatch {
namespace {

class StatusImageTest : public testing::TestWithParam<int> {
protected:
    /// Pixels of the lower third that are nearly of this colour.
    static int countNear(const QImage& image, const QColor& colour) {
        int count = 0;
        for (int y = image.height() * 2 / 3; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const auto pixel = image.pixelColor(x, y);
                const int distance = std::abs(pixel.red() - colour.red()) +
                                     std::abs(pixel.green() - colour.green()) +
                                     std::abs(pixel.blue() - colour.blue());
                if (pixel.alpha() > 200 && distance < 60) ++count;
            }
        }
        return count;
    }

    static double luminance(const QColor& colour) {
        const auto linear = [](double part) {
            return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
               0.0722 * linear(colour.blueF());
    }

    /// The ratio of the lightest to the darkest of these rows, without what the panel shows at their ends.
    static double contrastWithin(const QImage& image, int firstRow, int endRow) {
        double darkest = 1;
        double lightest = 0;
        for (int y = firstRow; y < endRow; ++y) {
            for (int x = 2; x < image.width() - 2; ++x) {
                const double light = luminance(image.pixelColor(x, y));
                darkest = std::min(darkest, light);
                lightest = std::max(lightest, light);
            }
        }
        return (lightest + 0.05) / (darkest + 0.05);
    }

    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QGuiApplication application_{argc_, argv_};
};

TEST_P(StatusImageTest, TheFigureIsDrawnInTheColourOfItsMood) {
    const struct {
        StatusTitle::Mood mood;
        QColor colour;
    } cases[] = {
        {StatusTitle::Mood::low, QColor(196, 69, 69)},
        {StatusTitle::Mood::middling, QColor(232, 196, 88)},
        {StatusTitle::Mood::good, QColor(123, 216, 143)},
    };
    for (const auto& [mood, colour] : cases) {
        EXPECT_GE(countNear(statusImage(GetParam(), {"72%", "", mood}), colour), GetParam() / 4);
    }
}

TEST_P(StatusImageTest, EveryFigureFitsIntoTheSquare) {
    const int size = GetParam();
    for (const auto* figure : {"—", "8%", "72%", "100%"}) {
        const auto image = statusImage(size, {figure, "", StatusTitle::Mood::good});
        ASSERT_EQ(image.size(), QSize(size, size));
        for (int y = 0; y < size; ++y) {
            EXPECT_LT(image.pixelColor(0, y).alpha(), 200) << figure << " row " << y;
            EXPECT_LT(image.pixelColor(size - 1, y).alpha(), 200) << figure << " row " << y;
        }
    }
}

TEST_P(StatusImageTest, FigureAndLogoStandOutFromTheirGroundOnEveryPanel) {
    const int size = GetParam();
    for (const auto panel : {Qt::white, Qt::lightGray, Qt::darkGray, Qt::black}) {
        QImage seen(size, size, QImage::Format_RGB32);
        seen.fill(panel);
        QPainter(&seen).drawImage(0, 0, statusImage(size, {"72%", "", StatusTitle::Mood::low}));
        // The darkest of the moods, next to the darkest that is around it.
        EXPECT_GE(contrastWithin(seen, size * 2 / 3, size - 2), 3.0) << panel;
        EXPECT_GE(contrastWithin(seen, 2, size / 2), 4.5) << panel;
    }
}

INSTANTIATE_TEST_SUITE_P(TraySizes, StatusImageTest, testing::Values(16, 22, 24, 32, 48, 64));

}  // namespace
}  // namespace tidewatch
