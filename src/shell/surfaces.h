#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/api/screens.h"
#include "shell/floating_window.h"
#include "shell/menu_row.h"
#include "shell/status_title.h"
#include "shell/themes/theme.h"
#include "shell/widgets/widget_kind.h"

namespace tidewatch {

/// The item in the desktop's tray.
class StatusItem {
public:
    enum class Click { left, right };

    virtual ~StatusItem() = default;

    virtual void setTitle(const StatusTitle& title) = 0;
    virtual void onClick(std::function<void(Click)> clicked) = 0;

    /// The menu for trays that draw it themselves, which call `rows` each time before it opens. With any
    /// other tray a click opens it, which onClick() reports.
    virtual void offerMenu(std::function<MenuRows()> rows) = 0;

    /// Whether a tray currently shows the item.
    [[nodiscard]] virtual bool isShown() const = 0;

    /// Shows a message at the item, without feedback.
    virtual void showMessage(const std::string& title, const std::string& body) = 0;

    /// Opens a menu of `rows` at the mouse; asynchronous.
    virtual void popUpMenu(const MenuRows& rows) = 0;
};

/// A sentence that contains a user-defined name of any length: when it is displayed, only the name is elided.
/// More lines may follow it.
struct TextWithName {
    std::string before;
    std::string name{};
    std::string after{};

    [[nodiscard]] std::string whole() const { return before + name + after; }
};

/// A question answered by a line of text.
struct TextPrompt {
    std::string title;
    TextWithName text;
    std::string accept;       ///< label of the accept button
    std::string placeholder;  ///< shown while the field is empty
    std::string initial;      ///< the field's initial text
    double fieldWidth = 240;  ///< points
};

/// A yes/no question.
struct Confirmation {
    TextWithName title;
    TextWithName text;
    std::string accept;  ///< label of the accept button
};

/// The kind of file to save.
enum class SaveKind { csv, pdf };

/// A request for a path to save a file.
struct SaveRequest {
    std::string title;
    std::string proposedName;  ///< with its extension, without a folder
    SaveKind kind = SaveKind::csv;
};

/// Modal messages and questions. Asynchronous: they call back when accepted.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual void warn(const std::string& title, const std::string& text) = 0;
    virtual void ask(const TextPrompt& prompt, std::function<void(std::string)> accepted) = 0;

    /// For actions that a user does not want to happen by accident.
    virtual void confirm(const Confirmation& question, std::function<void()> accepted) = 0;

    /// Asks for the path of a file to write, and for confirmation to replace an existing one. `accepted` gets
    /// an absolute path with the kind's extension.
    virtual void chooseSaveLocation(const SaveRequest& request,
                                    std::function<void(std::string path)> accepted) = 0;
};

/// The statistics window.
class StatisticsWindow {
public:
    virtual ~StatisticsWindow() = default;

    /// Shows it centred on the main screen, focuses it and posts DashboardWillShow, even if it is already
    /// visible.
    virtual void showWindow() = 0;
    virtual void close() = 0;
    /// False while minimised.
    [[nodiscard]] virtual bool isVisible() const = 0;

    void toggleWindow() {
        if (isVisible()) {
            close();
        } else {
            showWindow();
        }
    }
};

/// Creates the user interface's surfaces, for use on the main thread.
class Surfaces {
public:
    virtual ~Surfaces() = default;

    /// Registers the program's fonts. Must be called before any other surface is created.
    virtual void registerFonts() = 0;
    /// The floating clock's window, above the others; shows today's time.
    [[nodiscard]] virtual std::unique_ptr<FloatingWindow> makeClockWindow(PanelSize size) = 0;
    /// The window of a widget, below the others; its content refreshes by itself while it is visible.
    [[nodiscard]] virtual std::unique_ptr<FloatingWindow> makeWidgetWindow(WidgetKind kind,
                                                                           PanelSize size) = 0;
    [[nodiscard]] virtual std::unique_ptr<StatusItem> makeStatusItem() = 0;
    [[nodiscard]] virtual Dialogs& dialogs() = 0;

    /// Opens a menu of `rows` at a desktop position; asynchronous.
    virtual void popUpMenu(const MenuRows& rows, platform::Point at) = 0;

    /// Shows a short text beside the floating clock for a few seconds.
    virtual void showHint(const std::string& text) = 0;
};

}  // namespace tidewatch
