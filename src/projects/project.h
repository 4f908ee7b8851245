#pragma once

#include <string>

#include "base/uuid.h"
#include "projects/color_hex.h"

namespace tidewatch {

/// A project that work can be booked to.
struct Project {
    Uuid id;
    std::string name;
    std::string colorHex;  ///< as stored; may be invalid
    bool archived = false;

    bool operator==(const Project&) const = default;

    /// The colour to display: colorHex, or green if it is invalid.
    [[nodiscard]] RgbColor color() const;
};

}  // namespace tidewatch
