#include "shell/style/tabular_layout.h"

#include <QFontMetricsF>
#include <algorithm>

namespace tidewatch {
namespace {

/// A colon is a third as wide as its cell in a monospaced font; this leaves it some air.
constexpr double closeColon = 0.55;

enum class Colons { asInFont, close };

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

double widestDigit(const QFontMetricsF& metrics) {
    double widest = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit) {
        widest = std::max(widest, metrics.horizontalAdvance(QChar(digit)));
    }
    return widest;
}

class LineBuilder final {
public:
    LineBuilder(const QFont& font, const TabularOptions& options, Colons colons)
        : metrics_(font),
          options_(options),
          colons_(colons),
          spacing_(font.letterSpacing()),
          digitCell_(widestDigit(metrics_)) {}

    TabularLine build(const QString& text) {
        for (const auto character : text) add(character);
        endRun();
        line_.width = std::max(0.0, x_ - (text.isEmpty() ? 0 : spacing_));
        return std::move(line_);
    }

private:
    void add(QChar character) {
        if (character == u' ' && options_.wordGap >= 0) {
            endRun();
            x_ += options_.wordGap;
        } else if (options_.digits == Digits::monospaced && isDigit(character)) {
            addCell(character, digitCell_);
        } else if (colons_ == Colons::close && character == u':') {
            addCell(character, metrics_.horizontalAdvance(character) * closeColon);
        } else {
            run_ += character;
        }
    }

    void addCell(QChar character, double cell) {
        endRun();
        line_.runs.push_back({QString(character), x_ + (cell - metrics_.horizontalAdvance(character)) / 2});
        x_ += cell;
    }

    void endRun() {
        if (run_.isEmpty()) return;
        line_.runs.push_back({run_, x_});
        x_ += metrics_.horizontalAdvance(run_);
        run_.clear();
    }

    QFontMetricsF metrics_;
    TabularOptions options_;
    Colons colons_;
    double spacing_;
    double digitCell_;
    double x_ = 0;
    QString run_;
    TabularLine line_;
};

}  // namespace

TabularLine layOutTabular(const QString& text, const QFont& font, const TabularOptions& options) {
    auto line = LineBuilder(font, options, Colons::asInFont).build(text);
    if (options.maximumWidth <= 0 || line.width <= options.maximumWidth) return line;
    line = LineBuilder(font, options, Colons::close).build(text);
    if (line.width > options.maximumWidth) line.shrink = options.maximumWidth / line.width;
    return line;
}

}  // namespace tidewatch
