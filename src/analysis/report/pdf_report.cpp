#include "analysis/report/pdf_report.h"

#include <cstddef>
#include <string_view>

#include "analysis/report/page_painter.h"
#include "analysis/report/report_page.h"

namespace tidewatch {

bool PdfReport::generate(const std::string& path) {
    const auto pdf = toPdf(layOutReport(buildReportData(sources_), pageTextWidth()));
    const std::string_view content(pdf.constData(), static_cast<std::size_t>(pdf.size()));
    if (content.empty()) return failed("the page could not be drawn");
    if (const auto failure = files_.exportFile(path, content)) return failed(failure->message);
    return true;
}

bool PdfReport::failed(const std::string& reason) {
    log_.warning("PdfReport write: " + reason);
    return false;
}

}  // namespace tidewatch
