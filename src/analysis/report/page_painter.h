#pragma once

#include <QByteArray>

#include "analysis/report/report_page.h"

namespace tidewatch {

/// The page as a PDF file: vectors only, its fonts within it, its text to be selected and searched. Empty if
/// the toolkit cannot write one. Needs a QGuiApplication; main thread only.
[[nodiscard]] QByteArray toPdf(const ReportPage& page);

/// How wide toPdf() draws a text on this machine.
[[nodiscard]] TextWidth pageTextWidth();

}  // namespace tidewatch
