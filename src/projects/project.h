#pragma once

#include <string>

#include "base/uuid.h"
#include "projects/color_hex.h"

namespace tidewatch {

/// What the user tags work with.
struct Project {
    Uuid id;
    std::string name;
    std::string colorHex;  ///< as stored, which may be no colour at all
    bool archived = false;

    bool operator==(const Project&) const = default;

    /// The colour to show: what colorHex says, or green if it says nothing.
    [[nodiscard]] RgbColor color() const;
};

}  // namespace tidewatch
