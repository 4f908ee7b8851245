#pragma once

#include <string>

#include "tools/demo/demo_record.h"

namespace tidewatch::demo {

/// Makes a home directory with the record, settings, and desktop entries
/// for the applications, whose icons are looked for in `iconFolder`. What is there is replaced file by file.
/// Throws std::runtime_error if anything cannot be written.
void writeDemoHome(const DemoRecord& record, const std::string& home, const std::string& iconFolder);

}  // namespace tidewatch::demo
