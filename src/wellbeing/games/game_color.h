#pragma once

namespace tidewatch {

/// An sRGB colour; every component from 0 to 1.
struct GameColor {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    bool operator==(const GameColor&) const = default;
};

}  // namespace tidewatch
