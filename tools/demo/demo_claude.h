#pragma once

#include <string>

#include "base/instant.h"

namespace tidewatch::demo {

/// Writes four months of Claude logs up to `now` into a home directory, and a history that also holds the
/// month before them, whose logs are gone. Deterministic. Throws std::runtime_error if anything cannot be
/// written.
void writeDemoClaude(Instant now, const std::string& home);

}  // namespace tidewatch::demo
