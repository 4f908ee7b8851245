#pragma once

#include <QQuickItem>
#include <QQuickWindow>

#include "platform/api/window_system.h"
#include "shell/themes/theme.h"
#include "shell/windows/panel_shadow.h"

namespace tidewatch {

/// The area around a floating window's panel. With a compositor it is a click-through margin with the shadow;
/// without one, where transparent pixels would be black, the window is shaped like the rounded panel.
class WindowOutline final {
public:
    /// `window` and `windowSystem` must outlive this object.
    WindowOutline(QQuickWindow& window, platform::WindowSystem& windowSystem);

    /// How far the window reaches beyond the panel on each side, in points.
    [[nodiscard]] double margin() const { return margin_; }

    /// Takes effect with the next layOut().
    void setCompositing(bool compositing);

    /// Positions window, panel and shadow; `origin` is the panel's top left corner in desktop points.
    void layOut(QQuickItem& panel, platform::Point origin, PanelSize size, double cornerRadius);

private:
    void cut(PanelSize panel, double cornerRadius);

    QQuickWindow& window_;
    platform::WindowSystem& windowSystem_;
    PanelShadow shadow_;
    double margin_ = 0;
};

}  // namespace tidewatch
