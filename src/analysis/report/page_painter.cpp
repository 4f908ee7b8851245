#include "analysis/report/page_painter.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QMarginsF>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QString>
#include <algorithm>
#include <cmath>
#include <vector>

#include "ui/style/fonts.h"
#include "ui/style/qt_color.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {
namespace {

// In places the toolkit positions letters on whole dots: this makes dots negligibly small.
constexpr int dotsPerPoint = 20;
constexpr int pointsPerInch = 72;

QString lineText(std::string_view utf8) {
    // External text may contain line breaks.
    return text(utf8).simplified();
}

// In dots.
QFont toPageFont(const FontSpec& spec) {
    auto font = toQFont(spec);
    font.setPixelSize(static_cast<int>(std::lround(spec.size * dotsPerPoint)));
    // A ligature is one glyph for two letters, which a text search does not find.
    font.setStyleStrategy(
        static_cast<QFont::StyleStrategy>(QFont::NoSubpixelAntialias | QFont::PreferNoShaping));
    return font;
}

// A run of text drawn in one call; lengths in dots.
struct Run {
    QString text;
    double x = 0;  // from the line's start
};

struct LaidOutLine {
    QFont font;
    std::vector<Run> runs;
    double width = 0;
};

// The toolkit's own letter spacing depends on the resolution of the screen, so tracked letters are placed one
// by one.
LaidOutLine layOut(const QString& text, const QFont& font, double tracking) {
    LaidOutLine line{font, {}, 0};
    const auto letters = tracking == 0 ? std::max<qsizetype>(text.size(), 1) : 1;
    for (qsizetype begin = 0; begin < text.size(); begin += letters) {
        const auto& run = line.runs.emplace_back(Run{text.mid(begin, letters), line.width});
        line.width += QFontMetricsF(font).horizontalAdvance(run.text) + tracking;
    }
    line.width = std::max(0.0, line.width - tracking);
    return line;
}

LaidOutLine layOut(const PageText& text) {
    const auto font = toPageFont(text.font);
    const double tracking = text.tracking * dotsPerPoint;
    const double column = text.width * dotsPerPoint;
    const auto whole = lineText(text.text);
    auto line = layOut(whole, font, tracking);
    if (line.width <= column) return line;
    return layOut(QFontMetricsF(font).elidedText(whole, Qt::ElideRight, column), font, tracking);
}

class PagePainter final {
public:
    explicit PagePainter(QPainter& painter) : painter_(painter) {}

    void draw(const ReportPage& page) {
        fill({0, 0, ReportPage::width, ReportPage::height, page.paper});
        for (const auto& box : page.boxes) fill(box);
        for (const auto& text : page.texts) write(text);
    }

private:
    void fill(const PageBox& box) {
        const QRectF rectangle(box.x * dotsPerPoint, box.y * dotsPerPoint, box.width * dotsPerPoint,
                               box.height * dotsPerPoint);
        if (box.radius <= 0) {
            painter_.fillRect(rectangle, toQColor(box.color));
            return;
        }
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(toQColor(box.color));
        const double radius = std::min(box.radius, box.width / 2) * dotsPerPoint;
        painter_.drawRoundedRect(rectangle, radius, radius);
    }

    void write(const PageText& text) {
        const auto line = layOut(text);
        const double free = text.width * dotsPerPoint - line.width;
        const double left = text.x * dotsPerPoint + (text.alignment == PageText::Alignment::right ? free : 0);
        painter_.setPen(toQColor(text.color));
        painter_.setFont(line.font);
        for (const auto& run : line.runs) {
            painter_.drawText(QPointF(left + run.x, text.baseline * dotsPerPoint), run.text);
        }
    }

    QPainter& painter_;
};

}  // namespace

QByteArray toPdf(const ReportPage& page) {
    QByteArray file;
    QBuffer buffer(&file);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(lineText(page.title));
    writer.setCreator("Fathom");
    writer.setPageSize(QPageSize(QSizeF(ReportPage::width, ReportPage::height), QPageSize::Point));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(pointsPerInch * dotsPerPoint);
    QPainter painter;
    if (!painter.begin(&writer)) return {};
    PagePainter(painter).draw(page);
    return painter.end() ? file : QByteArray();
}

TextWidth pageTextWidth() {
    return [](std::string_view text, const FontSpec& spec, double tracking) {
        return layOut(lineText(text), toPageFont(spec), tracking * dotsPerPoint).width / dotsPerPoint;
    };
}

}  // namespace tidewatch
