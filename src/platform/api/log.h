#pragma once

#include <string_view>

namespace tidewatch::platform {

/// The program's log, in English: standard error on a real machine. Thread-safe.
class Log {
public:
    virtual ~Log() = default;

    /// Something went wrong that the user is not shown.
    virtual void warning(std::string_view message) = 0;

    /// Something worth knowing that is no failure.
    virtual void info(std::string_view message) = 0;
};

}  // namespace tidewatch::platform
