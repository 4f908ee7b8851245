#pragma once

#include <QByteArray>
#include <QMenu>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <functional>
#include <memory>

#include "platform/api/desktop.h"
#include "platform/api/log.h"
#include "platform/api/window_system.h"
#include "shell/surfaces.h"
#include "shell/themes/theme_controller.h"
#include "shell/views/clock_presenter.h"
#include "shell/windows/no_network.h"
#include "shell/windows/quick_floating_window.h"

namespace tidewatch {

/// The surfaces on the toolkit, with the program's only QML engine. Main thread only.
class QtSurfaces final : public Surfaces, private Dialogs {
public:
    /// All of it must outlive the surfaces and what they create.
    struct Dependencies {
        platform::Log& log;
        platform::WindowSystem& windowSystem;
        const platform::Desktop& desktop;
        ThemeController& theme;
        ClockPresenter& clock;
        /// What is shown in the window of a widget.
        std::function<QuickFloatingWindow::Content(WidgetKind)> widgetContent;
    };

    explicit QtSurfaces(Dependencies dependencies);
    ~QtSurfaces() override;

    void registerFonts() override;
    [[nodiscard]] std::unique_ptr<FloatingWindow> makeClockWindow(PanelSize size) override;
    [[nodiscard]] std::unique_ptr<FloatingWindow> makeWidgetWindow(WidgetKind kind, PanelSize size) override;
    [[nodiscard]] std::unique_ptr<StatusItem> makeStatusItem() override;
    [[nodiscard]] Dialogs& dialogs() override { return *this; }
    void popUpMenu(const MenuRows& rows, platform::Point at) override;
    void showHint(const std::string& text) override;

    /// Creates a view of a module; `presenter` must outlive it. Returns null, with a log message, if the view
    /// cannot be created, which is a bug.
    [[nodiscard]] std::unique_ptr<QQuickItem> makeView(const QByteArray& name, QObject& presenter,
                                                       const QByteArray& module = "Tidewatch.Shell");

    /// Frees cached data of views that may never be created again.
    void clearViewCache();

private:
    [[nodiscard]] std::unique_ptr<QQuickItem> brokenView(const QByteArray& name, const QString& errors);
    void warn(const std::string& title, const std::string& text) override;
    void ask(const TextPrompt& prompt, std::function<void(std::string)> accepted) override;
    void confirm(const Confirmation& question, std::function<void()> accepted) override;
    void chooseSaveLocation(const SaveRequest& request,
                            std::function<void(std::string path)> accepted) override;

    const Dependencies dependencies_;
    NoNetwork noNetwork_;
    QQmlEngine engine_;
    QPointer<QuickFloatingWindow> clockWindow_;
    QPointer<QMenu> menu_;
    QString saveFolder_;  ///< the folder last used for saving; empty before
};

}  // namespace tidewatch
