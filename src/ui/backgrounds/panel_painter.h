#pragma once

#include "shell/themes/theme.h"
#include "ui/backgrounds/panel_shape.h"

namespace tidewatch {

/// Paints the background of the clock's panel. A translucent one is rounded and leaves its corners as they
/// are; an opaque one fills the rectangle, to be cut by the window. For PanelBackground::liquid, which
/// moves, it paints nothing.
void paintPanel(QPainter& painter, PanelBackground background, const PanelShape& shape);

}  // namespace tidewatch
