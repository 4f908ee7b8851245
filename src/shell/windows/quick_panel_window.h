#pragma once

#include <QQuickItem>
#include <QQuickWindow>
#include <QVariantAnimation>
#include <functional>
#include <memory>

#include "platform/api/window_system.h"
#include "shell/surfaces.h"
#include "shell/windows/panel_shadow.h"

namespace tidewatch {

/// The floating clock's window on the toolkit. With a compositor it has a margin around the panel that holds
/// the shadow and lets clicks through; without one it is cut to the panel's rounded shape.
class QuickPanelWindow final : public QQuickWindow, public PanelWindow {
public:
    /// What the window asks of the view that it shows.
    struct Content {
        std::unique_ptr<QQuickItem> item;               ///< fills the panel
        std::function<double(PanelSize)> cornerRadius;  ///< in points, of a panel of that size
        std::function<void(bool)> setTranslucent;       ///< whether its background may let things through
        std::function<void(bool)> setOnScreen;          ///< whether anything of it can be seen
    };

    /// `windowSystem` must outlive this object.
    QuickPanelWindow(platform::WindowSystem& windowSystem, Content content, PanelSize size);
    ~QuickPanelWindow() override;

    [[nodiscard]] PanelSize panelSize() const override;
    [[nodiscard]] platform::Point origin() const override;
    void setOrigin(platform::Point origin) override;
    void resize(PanelSize size) override;
    void orderFrontRegardless() override;
    void orderOut() override;
    [[nodiscard]] bool isVisible() const override;
    void setGestures(Gestures gestures) override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void adaptToCompositor();
    void layOut(platform::Point origin);
    void cutToShape(double radius);
    void updateOnScreen();

    platform::WindowSystem& windowSystem_;
    Content content_;
    Gestures gestures_;
    PanelSize panel_;
    double margin_ = 0;  ///< of the window around the panel
    PanelShadow shadow_;
    QVariantAnimation growth_;
    bool covered_ = false;
    Connection compositing_;
    Connection covering_;
};

}  // namespace tidewatch
