#include "projects/project.h"

namespace tidewatch {
namespace {

constexpr RgbColor systemGreen{52, 199, 89};

}  // namespace

RgbColor Project::color() const {
    return parseColorHex(colorHex).value_or(systemGreen);
}

}  // namespace tidewatch
