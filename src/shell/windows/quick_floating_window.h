#pragma once

#include <QQuickItem>
#include <QQuickWindow>
#include <QString>
#include <QVariantAnimation>
#include <functional>
#include <memory>

#include "platform/api/window_system.h"
#include "shell/floating_window.h"
#include "shell/windows/window_outline.h"

namespace tidewatch {

/// A floating window on the toolkit: the layer, the mouse, the size, and whether anything of it can be seen.
/// What lies around its panel is WindowOutline's. What a control of the content takes of the mouse is the
/// control's.
class QuickFloatingWindow final : public QQuickWindow, public FloatingWindow {
public:
    /// What the window asks of the view that it shows.
    struct Content {
        QString title;                                  ///< of the window; shown nowhere, but tools list it
        std::unique_ptr<QQuickItem> item;               ///< fills the panel
        std::function<double(PanelSize)> cornerRadius;  ///< in points, of a panel of that size
        std::function<void(bool)> setTranslucent;       ///< whether its background may let things through
        std::function<void(bool)> setOnScreen;          ///< whether anything of it can be seen
    };

    /// `windowSystem` must outlive this object.
    QuickFloatingWindow(platform::WindowSystem& windowSystem, WindowLayer layer, Content content,
                        PanelSize size);
    ~QuickFloatingWindow() override;

    [[nodiscard]] PanelSize panelSize() const override;
    [[nodiscard]] platform::Point origin() const override;
    void setOrigin(platform::Point origin) override;
    void resize(PanelSize size) override;
    void orderFrontRegardless() override;
    void orderOut() override;
    [[nodiscard]] bool isVisible() const override;
    void setGestures(Gestures gestures) override;

protected:
    bool event(QEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void mousePressed(const QMouseEvent& event);
    void mouseMoved(const QMouseEvent& event);
    void mouseReleased(const QMouseEvent& event);
    void adaptToCompositor();
    void layOut(platform::Point origin);
    void updateOnScreen();

    platform::WindowSystem& windowSystem_;
    Content content_;
    Gestures gestures_;
    PanelSize panel_;
    WindowOutline outline_;
    QVariantAnimation growth_;
    bool takenByContent_ = false;  ///< the press that is going on
    bool covered_ = false;
    Connection compositing_;
    Connection covering_;
};

}  // namespace tidewatch
