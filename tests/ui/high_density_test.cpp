// On a screen with two pixels per point, painted items must have the screen's resolution.

#include <gmock/gmock.h>

#include <QGuiApplication>
#include <QPainter>
#include <QQuickPaintedItem>

#include "ui/backgrounds/pixel_picture.h"
#include "ui/ui_scene.h"

namespace tidewatch {
namespace {

constexpr int pixelsToAPoint = 2;

/// Whether an image consists of blocks of equal pixels, as if painted at half the resolution and enlarged.
bool isEnlarged(const QImage& image) {
    for (int y = 0; y + 1 < image.height(); y += pixelsToAPoint) {
        for (int x = 0; x + 1 < image.width(); x += pixelsToAPoint) {
            const auto pixel = image.pixel(x, y);
            if (image.pixel(x + 1, y) != pixel || image.pixel(x, y + 1) != pixel) return false;
        }
    }
    return true;
}

class HighDensity : public testing::TestWithParam<const char*> {};

TEST_P(HighDensity, IsPaintedInThePixelsOfTheScreen) {
    UiScene scene;
    scene.show(GetParam(), {120, 120});
    ASSERT_EQ(scene.window_.effectiveDevicePixelRatio(), pixelsToAPoint);
    const auto picture = scene.picture();
    ASSERT_EQ(picture.width(), 120 * pixelsToAPoint);
    EXPECT_FALSE(isEnlarged(picture));
}

INSTANTIATE_TEST_SUITE_P(
    Items, HighDensity,
    testing::Values("Symbol { name: 'circle.fill'; side: 40; color: 'red' }",
                    "Symbol { name: 'circle.fill'; side: 40; width: 60; height: 60; color: 'red' }",
                    "SymbolRow { names: ['star', 'star.fill']; colors: ['red', 'blue']; side: 30 }",
                    "TabularText { text: '08:15'; font: Style.sans(30, Style.Medium); color: 'red' }",
                    "AppIconView { side: 40; symbolName: 'clock'; color: 'red' }",
                    "DonutRing { width: 80; height: 80; fraction: 0.3; color: 'red'; track: 'blue' }",
                    "PanelBackground { width: 100; height: 60; cornerRadius: 16 }"));

/// Remembers how large a picture it is asked to paint.
class MeasuredItem final : public QQuickPaintedItem {
public:
    using QQuickPaintedItem::QQuickPaintedItem;

    void paint(QPainter* painter) override {
        const auto* picture = painter->device();
        painted_ = {picture->width(), picture->height()};
    }

    QSize painted_;
};

TEST(PixelPicture, HasNoMorePixelsThanTheScreenShows) {
    QQuickWindow window;
    window.resize(120, 120);
    MeasuredItem item(window.contentItem());
    item.setSize({53.5, 21});
    setPictureSize(item);
    window.show();
    window.grabWindow();
    EXPECT_EQ(item.painted_, QSize(54, 21) * pixelsToAPoint);
}

}  // namespace
}  // namespace tidewatch

int main(int argc, char* argv[]) {
    testing::InitGoogleMock(&argc, argv);
    qputenv("QT_SCALE_FACTOR", QByteArray::number(tidewatch::pixelsToAPoint));
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
