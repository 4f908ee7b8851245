#pragma once

#include <QApplication>
#include <array>

#include "platform/api/platform.h"
#include "shell/windows/toolkit_translator.h"

namespace tidewatch {

/// The program: the toolkit's application object, configured for a tray program, and its life cycle. One per
/// process.
class Application final {
public:
    /// Sets up the toolkit; `programPath` is the process's first argument and must outlive this object.
    explicit Application(char* programPath);
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;
    ~Application();

    /// Runs until the user, the session or a signal ends the program. Returns the exit code: 0 also if
    /// another instance was running and was asked to come to the front.
    [[nodiscard]] int run(const platform::Platform& platform);

private:
    int argumentCount_ = 1;
    std::array<char*, 2> arguments_;
    QApplication toolkit_;
    ToolkitTranslator toolkitTranslator_;
};

}  // namespace tidewatch
