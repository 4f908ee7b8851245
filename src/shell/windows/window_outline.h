#pragma once

#include <QQuickItem>
#include <QQuickWindow>

#include "platform/api/window_system.h"
#include "shell/themes/theme.h"
#include "shell/windows/panel_shadow.h"

namespace tidewatch {

/// What a floating window has around its panel. With a compositor that is a margin that holds the shadow and
/// lets clicks through; without one, where transparent pixels would be black, the window is cut to the
/// panel's rounded shape.
class WindowOutline final {
public:
    /// `window` and `windowSystem` must outlive this object.
    WindowOutline(QQuickWindow& window, platform::WindowSystem& windowSystem);

    /// How far the window reaches beyond the panel on each side, in points.
    [[nodiscard]] double margin() const { return margin_; }

    /// Holds from the next layOut() on.
    void setCompositing(bool compositing);

    /// Brings window, panel and shadow to their places; `origin` is the panel's top left corner in desktop
    /// points.
    void layOut(QQuickItem& panel, platform::Point origin, PanelSize size, double cornerRadius);

private:
    void cut(PanelSize panel, double cornerRadius);

    QQuickWindow& window_;
    platform::WindowSystem& windowSystem_;
    PanelShadow shadow_;
    double margin_ = 0;
};

}  // namespace tidewatch
