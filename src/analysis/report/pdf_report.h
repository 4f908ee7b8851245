#pragma once

#include <string>

#include "analysis/report_data.h"
#include "platform/api/file_system.h"
#include "platform/api/log.h"

namespace tidewatch {

/// Writes the report of the current month. Main thread only; needs a QGuiApplication.
class PdfReport final {
public:
    /// The objects in `sources`, and the other two, must outlive it.
    PdfReport(const ReportSources& sources, platform::FileSystem& files, platform::Log& log)
        : sources_(sources), files_(files), log_(log) {}

    /// Writes one page as a PDF to `path`, replacing a file. On failure logs, and the file is unchanged.
    [[nodiscard]] bool generate(const std::string& path);

private:
    [[nodiscard]] bool failed(const std::string& reason);

    const ReportSources sources_;
    platform::FileSystem& files_;
    platform::Log& log_;
};

}  // namespace tidewatch
