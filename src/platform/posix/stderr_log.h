#pragma once

#include "platform/api/log.h"

namespace tidewatch::platform {

/// Writes each message as one line to the standard error stream, lines of several threads never mixed.
/// Line breaks within a message become blanks.
class StderrLog final : public Log {
public:
    void warning(std::string_view message) override;
    void info(std::string_view message) override;
};

}  // namespace tidewatch::platform
