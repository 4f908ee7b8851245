#include "ui/texts/tabular_layout.h"

#include <algorithm>
#include <cmath>

namespace tidewatch {
namespace {

/// A colon takes a third of its cell in a monospaced font; this leaves it some space.
constexpr double closeColon = 0.55;

/// Narrower digits, in screen pixels, would be distorted by rounding, and are illegible anyway.
constexpr double minWholeCell = 4;

enum class Colons { asInFont, close };
enum class Cells { exact, nearestPixel, lowerPixel };

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

class LineBuilder final {
public:
    LineBuilder(ShapedFont& font, const TabularOptions& options, Colons colons, Cells cells, double shrink)
        : font_(font),
          options_(options),
          colons_(colons),
          cells_(cells),
          pixel_(options.screenPixel / shrink),
          spacing_(font.font().letterSpacing()) {
        const double widest = font_.widestDigit();
        if (widest < minWholeCell * pixel_) cells_ = Cells::exact;
        digitCell_ = cell(widest);
        line_.shrink = shrink;
    }

    TabularLine build(const QString& text) {
        for (const auto character : text) add(character);
        endRun();
        line_.width = std::max(0.0, x_ - spacing_);
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
            addCell(character, cell(font_.advance(character) * closeColon));
        } else {
            run_ += character;
        }
    }

    void addCell(QChar character, double width) {
        endRun();
        line_.runs.push_back({QString(character), x_ + (width - font_.advance(character)) / 2});
        x_ += width;
    }

    void endRun() {
        if (run_.isEmpty()) return;
        line_.runs.push_back({run_, x_});
        x_ += font_.advance(run_);
        run_.clear();
    }

    [[nodiscard]] double cell(double width) const {
        if (cells_ == Cells::exact || pixel_ <= 0) return width;
        const double pixels = width / pixel_;
        return pixel_ *
               std::max(1.0, cells_ == Cells::nearestPixel ? std::round(pixels) : std::floor(pixels));
    }

    ShapedFont& font_;
    TabularOptions options_;
    Colons colons_;
    Cells cells_;
    double pixel_;
    double spacing_;
    double digitCell_ = 0;
    double x_ = 0;
    QString run_;
    TabularLine line_;
};

}  // namespace

TabularLine layOutTabular(const QString& text, ShapedFont& font, const TabularOptions& options) {
    const double maximum = options.maximumWidth > 0 ? options.maximumWidth : HUGE_VAL;
    const auto build = [&](Colons colons, Cells cells, double shrink = 1) {
        return LineBuilder(font, options, colons, cells, shrink).build(text);
    };
    const bool fits = build(Colons::asInFont, Cells::exact).width <= maximum;
    const auto colons = fits ? Colons::asInFont : Colons::close;
    const double shrink = std::min(1.0, maximum / build(colons, Cells::exact).width);
    auto line = build(colons, Cells::nearestPixel, shrink);
    return line.width * shrink <= maximum ? line : build(colons, Cells::lowerPixel, shrink);
}

}  // namespace tidewatch
