#pragma once

#include <QApplication>
#include <array>

#include "platform/api/platform.h"
#include "shell/windows/toolkit_translator.h"

namespace tidewatch {

/// The program: the toolkit's application object, set up for a program that lives in the tray, and the way
/// from start to end. One in a process.
class Application final {
public:
    /// Sets the toolkit up; `programPath` is the process's first argument and must outlive this object.
    explicit Application(char* programPath);

    /// Runs until the user, the session or a signal ends the program. Gives the exit code: 0 also when
    /// another instance was running and was asked to come to the front.
    [[nodiscard]] int run(const platform::Platform& platform);

private:
    int argumentCount_ = 1;
    std::array<char*, 2> arguments_;
    QApplication toolkit_;
    ToolkitTranslator toolkitTranslator_;
};

}  // namespace tidewatch
