#pragma once

#include <functional>
#include <string>

namespace tidewatch {

/// A yes/no question with a name in its text, which may be of any length.
struct SystemQuestion {
    std::string title;
    std::string name;       ///< begins the text
    std::string afterName;  ///< the rest of it
    std::string accept;     ///< label of the accept button
};

/// Messages and questions, shown elsewhere. Asynchronous: they call back when accepted.
struct SystemCommands {
    std::function<void(const SystemQuestion& question, std::function<void()> accepted)> confirm;
    std::function<void(const std::string& title, const std::string& text)> warn;
};

}  // namespace tidewatch
