#include "shell/icons/status_image.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
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

INSTANTIATE_TEST_SUITE_P(TraySizes, StatusImageTest, testing::Values(16, 22, 24, 32, 48));

}  // namespace
}  // namespace tidewatch
