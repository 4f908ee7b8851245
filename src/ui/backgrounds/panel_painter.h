#pragma once

#include "shell/themes/theme.h"
#include "ui/backgrounds/panel_shape.h"

namespace tidewatch {

/// Paints the background of the clock's panel. A translucent one is rounded; an opaque one fills the
/// rectangle, which the window clips. Paints nothing for PanelBackground::liquid, which is animated.
void paintPanel(QPainter& painter, PanelBackground background, const PanelShape& shape);

}  // namespace tidewatch
