#pragma once

#include <string>

#include "analysis/report_data.h"
#include "platform/api/file_system.h"
#include "platform/api/log.h"

namespace tidewatch {

/// Writes the report of the month of now. Main thread only; needs a QGuiApplication.
class PdfReport final {
public:
    /// What `sources` refers to, and the other two, must outlive it.
    PdfReport(const ReportSources& sources, platform::FileSystem& files, platform::Log& log)
        : sources_(sources), files_(files), log_(log) {}

    /// One page, as a PDF in the place of the file at `path`. If it cannot be written the log tells, and the
    /// file holds what it held before.
    [[nodiscard]] bool generate(const std::string& path);

private:
    [[nodiscard]] bool failed(const std::string& reason);

    const ReportSources sources_;
    platform::FileSystem& files_;
    platform::Log& log_;
};

}  // namespace tidewatch
