#include "platform/freedesktop/notification_picture.h"

#include <QByteArray>

namespace tidewatch::platform {

namespace {

constexpr int bitsPerSample = 8;
constexpr int channels = 4;

}  // namespace

QDBusArgument& operator<<(QDBusArgument& message, const NotificationPicture& picture) {
    const auto image = picture.image.convertToFormat(QImage::Format_RGBA8888);
    const auto stride = static_cast<int>(image.bytesPerLine());
    message.beginStructure();
    message << image.width() << image.height() << stride << true << bitsPerSample << channels
            << QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
    message.endStructure();
    return message;
}

const QDBusArgument& operator>>(const QDBusArgument& message, NotificationPicture& picture) {
    int width = 0;
    int height = 0;
    int stride = 0;
    int bits = 0;
    int samples = 0;
    bool alpha = false;
    QByteArray pixels;
    message.beginStructure();
    message >> width >> height >> stride >> alpha >> bits >> samples >> pixels;
    message.endStructure();
    picture.image = QImage();
    const bool readable = alpha && bits == bitsPerSample && samples == channels && width > 0 && height > 0 &&
                          stride >= width * channels && pixels.size() >= qsizetype(stride) * height;
    if (readable) {
        picture.image = QImage(reinterpret_cast<const uchar*>(pixels.constData()), width, height, stride,
                               QImage::Format_RGBA8888)
                            .copy();
    }
    return message;
}

}  // namespace tidewatch::platform
