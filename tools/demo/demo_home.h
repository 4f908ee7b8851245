#pragma once

#include <string>

#include "tools/demo/demo_record.h"

namespace tidewatch::demo {

/// Creates a home directory with the record, settings, and desktop entries of the applications, with icons
/// from `iconFolder`. Existing files are overwritten. Throws std::runtime_error if anything cannot be
/// written.
void writeDemoHome(const DemoRecord& record, const std::string& home, const std::string& iconFolder);

}  // namespace tidewatch::demo
