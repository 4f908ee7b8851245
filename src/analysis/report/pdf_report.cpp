#include "analysis/report/pdf_report.h"

#include <cstddef>
#include <string_view>

#include "analysis/report/page_painter.h"
#include "analysis/report/report_page.h"
#include "base/result.h"

namespace tidewatch {

bool PdfReport::generate(const std::string& path) {
    const auto pdf = toPdf(layOutReport(buildReportData(sources_), pageTextWidth()));
    const std::string_view content(pdf.constData(), static_cast<std::size_t>(pdf.size()));
    const auto written = content.empty() ? Outcome(Error{"the page could not be drawn"})
                                         : files_.replaceAtomically(path, content);
    if (!written) log_.warning("PdfReport write: " + written.error().message);
    return written.ok();
}

}  // namespace tidewatch
