#pragma once

class QImage;

namespace tidewatch {

/// Blurs a premultiplied 32-bit image in place: three box blurs, within a few percent of a Gaussian with this
/// standard deviation, in pixels. Edge pixels are extended outwards. Meant for small images.
void blur(QImage& image, double deviation);

}  // namespace tidewatch
