#pragma once

#include <QQuickItem>
#include <QQuickWindow>
#include <QString>
#include <QVariantAnimation>
#include <functional>
#include <memory>
#include <optional>

#include "platform/api/window_system.h"
#include "shell/floating_window.h"
#include "shell/windows/window_outline.h"

namespace tidewatch {

/// A floating window on the toolkit: its layer, mouse events, size and visibility. WindowOutline handles the
/// area around its panel. Mouse events handled by a control of the content are not reported.
class QuickFloatingWindow final : public QQuickWindow, public FloatingWindow {
public:
    /// The view shown in the window.
    struct Content {
        QString title;                     ///< the window's title; not displayed, but listed by tools
        std::unique_ptr<QQuickItem> item;  ///< fills the panel
        std::function<double(PanelSize)> cornerRadius;  ///< in points, of a panel of that size
        std::function<void(bool)> setTranslucent;       ///< whether its background may be translucent
        std::function<void(bool)> setOnScreen;          ///< whether any of it is visible
    };

    /// `windowSystem` must outlive this object.
    QuickFloatingWindow(platform::WindowSystem& windowSystem, WindowLayer layer, Content content,
                        PanelSize size);
    ~QuickFloatingWindow() override;

    [[nodiscard]] PanelSize panelSize() const override;
    [[nodiscard]] platform::Point origin() const override;
    void setOrigin(platform::Point origin) override;
    void resize(PanelSize size) override;
    void fitToScreens() override;
    void orderFrontRegardless() override;
    void orderOut() override;
    [[nodiscard]] bool isVisible() const override;
    void setGestures(Gestures gestures) override;

protected:
    bool event(QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void mousePressed(const QMouseEvent& event);
    void mouseMoved(const QMouseEvent& event);
    void mouseReleased(const QMouseEvent& event);
    void followResolution();
    void adaptToCompositor();
    void layOut(platform::Point origin);
    void updateOnScreen();

    platform::WindowSystem& windowSystem_;
    Content content_;
    Gestures gestures_;
    PanelSize wanted_;  ///< as last requested
    PanelSize panel_;   ///< as the screens allow, and at this moment of its growth
    double ratio_ = 0;  ///< device pixels per point that the window is laid out for
    WindowOutline outline_;
    QVariantAnimation growth_;
    std::optional<QPoint> shownAt_;  ///< the window's place when it was shown, until it is first moved
    bool takenByContent_ = false;    ///< the current press
    bool covered_ = false;
    Connection compositing_;
    Connection covering_;
};

}  // namespace tidewatch
