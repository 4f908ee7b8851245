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

/// The statistics window on the toolkit: a normal window whose view only exists while it is shown. The view's
/// models must live elsewhere.
class QuickStatisticsWindow final : public StatisticsWindow {
public:
    /// The view shown in the window.
    struct Content {
        /// Called at each opening; the view fills the window. Without a view there is no window.
        std::function<std::unique_ptr<QQuickItem>()> makeView;
        std::function<void()> disappeared;    ///< the window was closed
        std::function<void()> viewDestroyed;  ///< some time after that
    };

    /// All of it must outlive this object.
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
    /// Whether it is maximised or in full screen.
    [[nodiscard]] bool fillsScreen() const;
    /// The window's geometry, without its frame.
    [[nodiscard]] QRect placement();
    void becomeMaximizable();
    void correctForFrame();
    void destroyRetired();

    const Dependencies dependencies_;
    Content content_;
    Connection themeChanges_;
    std::unique_ptr<Frame> window_;
    std::optional<platform::FrameMargins> margins_;  ///< of the window at its normal size, once known
    bool awaitsFrame_ = false;                       ///< shown, and its frame not reported since
    Connection frameReports_;
    /// A closed window, kept until its own view, which may have closed it, has returned.
    std::unique_ptr<Frame> retired_;
    QObject retirement_;
};

}  // namespace tidewatch
