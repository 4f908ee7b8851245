#pragma once

#include <string>

#include "base/instant.h"

namespace tidewatch::demo {

/// Puts large files, some of them long forgotten, into the user's folders of a home directory. They have a
/// size but take no space. Throws std::runtime_error if anything cannot be written.
void writeDemoFiles(Instant now, const std::string& home);

}  // namespace tidewatch::demo
