#pragma once

class QImage;

namespace tidewatch {

/// Blurs a premultiplied 32-bit image in place: three passes of a moving average, which together come within
/// a few percent of a Gaussian of this standard deviation, in pixels. Beyond its edges the image is taken to
/// go on as it is there. Meant for small images.
void blur(QImage& image, double deviation);

}  // namespace tidewatch
