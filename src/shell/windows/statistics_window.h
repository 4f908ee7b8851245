#pragma once

#include <QObject>
#include <QQuickItem>
#include <QQuickWindow>
#include <functional>
#include <memory>
#include <optional>

#include "core/broadcaster.h"
#include "platform/api/process_memory.h"
#include "platform/api/screens.h"
#include "platform/api/window_system.h"
#include "shell/surfaces.h"
#include "shell/themes/theme_controller.h"

namespace tidewatch {

/// The statistics window on the toolkit: an ordinary window of the desktop, whose view lives only as long as
/// it is on show. What the view shows must live elsewhere.
class QuickStatisticsWindow final : public StatisticsWindow {
public:
    /// What the window asks of the view that it shows.
    struct Content {
        /// At each opening; fills the window. Without a view there is no window.
        std::function<std::unique_ptr<QQuickItem>()> makeView;
        std::function<void()> disappeared;    ///< the window was closed
        std::function<void()> viewDestroyed;  ///< some time after that
    };

    /// What the window works with; all of it must outlive this object.
    struct Dependencies {
        platform::WindowSystem& windowSystem;
        const platform::Screens& screens;
        platform::ProcessMemory& memory;
        const ThemeController& theme;
        Broadcaster& broadcaster;
    };

    QuickStatisticsWindow(const Dependencies& dependencies, Content content);
    ~QuickStatisticsWindow() override;

    void showWindow() override;
    void close() override;
    [[nodiscard]] bool isVisible() const override;

private:
    class Frame;

    void applyTheme();
    /// Where the window belongs, without its frame.
    [[nodiscard]] QRect placement();
    void destroyRetired();

    const Dependencies dependencies_;
    Content content_;
    Connection themeChanges_;
    std::unique_ptr<Frame> window_;
    std::optional<platform::FrameMargins> margins_;  ///< of the window at its own size, once known
    /// Closed, often by its own view, which must have returned from that before it goes.
    std::unique_ptr<Frame> retired_;
    QObject retirement_;
};

}  // namespace tidewatch
