#pragma once

#include <QByteArray>

#include "analysis/report/report_page.h"

namespace tidewatch {

/// The page as a PDF: vector graphics, embedded fonts, selectable and searchable text. Empty if the toolkit
/// fails to write one. Needs a QGuiApplication; main thread only.
[[nodiscard]] QByteArray toPdf(const ReportPage& page);

/// The width at which toPdf() draws text on this machine.
[[nodiscard]] TextWidth pageTextWidth();

}  // namespace tidewatch
