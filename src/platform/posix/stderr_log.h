#pragma once

#include "platform/api/log.h"

namespace tidewatch::platform {

/// Writes each message as one line to standard error; lines of several threads are never mixed. Line breaks
/// in a message become spaces.
class StderrLog final : public Log {
public:
    void warning(std::string_view message) override;
    void info(std::string_view message) override;
};

}  // namespace tidewatch::platform
