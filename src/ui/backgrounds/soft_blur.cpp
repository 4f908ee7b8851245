#include "ui/backgrounds/soft_blur.h"

#include <QImage>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace tidewatch {
namespace {

constexpr int passes = 3;
constexpr std::size_t channels = 4;

/// A row or column of an image: `count` pixels, `stride` bytes apart.
struct Strip {
    uchar* first;
    std::size_t count;
    std::size_t stride;
};

/// The radius of the box blur that, applied three times, gives this deviation.
int halfWidth(double deviation) {
    const double width = std::sqrt(12 * deviation * deviation / passes + 1);
    return static_cast<int>(std::lround((width - 1) / 2));
}

void average(const Strip& strip, int half, std::vector<uchar>& before) {
    const int last = static_cast<int>(strip.count) - 1;
    const int window = 2 * half + 1;
    for (std::size_t channel = 0; channel < channels; ++channel) {
        for (std::size_t i = 0; i < strip.count; ++i) before[i] = strip.first[i * strip.stride + channel];
        const auto at = [&](int i) {
            return static_cast<int>(before[static_cast<std::size_t>(std::clamp(i, 0, last))]);
        };
        int sum = 0;
        for (int i = -half; i <= half; ++i) sum += at(i);
        for (int i = 0; i <= last; ++i) {
            strip.first[static_cast<std::size_t>(i) * strip.stride + channel] =
                static_cast<uchar>((sum + window / 2) / window);
            sum += at(i + half + 1) - at(i - half);
        }
    }
}

}  // namespace

void blur(QImage& image, double deviation) {
    const int half = halfWidth(deviation);
    if (half < 1 || image.isNull()) return;
    const auto width = static_cast<std::size_t>(image.width());
    const auto height = static_cast<std::size_t>(image.height());
    const auto rowBytes = static_cast<std::size_t>(image.bytesPerLine());
    uchar* const pixels = image.bits();
    std::vector<uchar> before(std::max(width, height));
    for (int pass = 0; pass < passes; ++pass) {
        for (std::size_t y = 0; y < height; ++y)
            average({pixels + y * rowBytes, width, channels}, half, before);
        for (std::size_t x = 0; x < width; ++x)
            average({pixels + x * channels, height, rowBytes}, half, before);
    }
}

}  // namespace tidewatch
