#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/api/screens.h"
#include "shell/floating_window.h"
#include "shell/menu_row.h"
#include "shell/status_title.h"
#include "shell/themes/theme.h"

namespace tidewatch {

/// The item in the desktop's tray.
class StatusItem {
public:
    enum class Click { left, right };

    virtual ~StatusItem() = default;

    virtual void setTitle(const StatusTitle& title) = 0;
    virtual void onClick(std::function<void(Click)> clicked) = 0;

    /// Whether there is a tray that shows the item at this moment.
    [[nodiscard]] virtual bool isShown() const = 0;

    /// Shows a message at the item; whether it is seen cannot be told.
    virtual void showMessage(const std::string& title, const std::string& body) = 0;

    /// Opens a menu of `rows` at the mouse; returns at once.
    virtual void popUpMenu(const MenuRows& rows) = 0;
};

/// A sentence around a name that the user once gave. The name may be of any length: whoever shows the
/// sentence cuts the name to its place, and nothing else.
struct TextWithName {
    std::string before;
    std::string name{};
    std::string after{};

    [[nodiscard]] std::string whole() const { return before + name + after; }
};

/// A question that is answered by a line of text.
struct TextPrompt {
    std::string title;
    TextWithName text;
    std::string accept;       ///< what the button that acts says
    std::string placeholder;  ///< shown while nothing is typed
    std::string initial;      ///< what the field holds at first
    double fieldWidth = 240;  ///< points
};

/// A question that is answered by yes or no.
struct Confirmation {
    TextWithName title;
    std::string text;
    std::string accept;  ///< what the button that acts says
};

/// What kind of file the user is asked a place for.
enum class SaveKind { csv, pdf };

/// A question where a file is to be written.
struct SaveRequest {
    std::string title;
    std::string proposedName;  ///< with its extension, without a folder
    SaveKind kind = SaveKind::csv;
};

/// Messages and questions that keep the user from the program's other windows until they are answered. All
/// return at once and call back when the button that acts is chosen.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual void warn(const std::string& title, const std::string& text) = 0;
    virtual void ask(const TextPrompt& prompt, std::function<void(std::string)> accepted) = 0;

    /// For what cannot be undone.
    virtual void confirm(const Confirmation& question, std::function<void()> accepted) = 0;

    /// Asks where a file is to be written, and whether one that is there may be replaced. `accepted` gets an
    /// absolute path with the kind's extension.
    virtual void chooseSaveLocation(const SaveRequest& request,
                                    std::function<void(std::string path)> accepted) = 0;
};

/// The statistics window, where it exists.
class StatisticsWindow {
public:
    virtual ~StatisticsWindow() = default;

    /// Brings it up, in the middle of the main screen and with the focus, and posts DashboardWillShow; each
    /// time, also if it is visible.
    virtual void showWindow() = 0;
    virtual void close() = 0;
    /// Not while it is minimised.
    [[nodiscard]] virtual bool isVisible() const = 0;

    void toggleWindow() {
        if (isVisible()) {
            close();
        } else {
            showWindow();
        }
    }
};

/// Makes what is on the screen. The main thread owns what it gives.
class Surfaces {
public:
    virtual ~Surfaces() = default;

    /// Makes the program's own fonts known; before any other surface.
    virtual void registerFonts() = 0;
    /// The floating clock's window, above the others; shows today's time.
    [[nodiscard]] virtual std::unique_ptr<FloatingWindow> makeClockWindow(PanelSize size) = 0;
    [[nodiscard]] virtual std::unique_ptr<StatusItem> makeStatusItem() = 0;
    [[nodiscard]] virtual Dialogs& dialogs() = 0;

    /// Opens a menu of `rows` at a place on the desktop; returns at once.
    virtual void popUpMenu(const MenuRows& rows, platform::Point at) = 0;

    /// Says something short beside the floating clock for a few seconds.
    virtual void showHint(const std::string& text) = 0;
};

}  // namespace tidewatch
