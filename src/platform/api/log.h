#pragma once

#include <string_view>

namespace tidewatch::platform {

/// Where the program's own words go, in English: the standard error stream on a real machine.
/// Safe from any thread.
class Log {
public:
    virtual ~Log() = default;

    /// Something went wrong that the user was not told.
    virtual void warning(std::string_view message) = 0;

    /// Something that a reader of the log should know.
    virtual void info(std::string_view message) = 0;
};

}  // namespace tidewatch::platform
