#include "analysis/report/report_page.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/duration_format.h"
#include "shell/themes/fathom.h"

namespace tidewatch {
namespace {

constexpr Color paper = fathom::paperNS;
constexpr Color ink = fathom::inkNS;
constexpr Color green{0.3, 0.62, 0.4};
constexpr Color mute{0.42, 0.42, 0.4};
constexpr Color line = Color::blackAt(0.1);

constexpr double margin = 60;
constexpr double pageLeft = margin;
constexpr double pageRight = ReportPage::width - margin;
constexpr double textColumn = pageRight - pageLeft;
constexpr double metricColumn = textColumn / 4;

constexpr double ruleHeight = 1;
constexpr double aroundRule = 18;
constexpr double columnGap = 12;
constexpr double barHeight = 8;
constexpr double barRadius = 2;
constexpr double nameColumn = 150;

// The same metrics for all typefaces, so that the layout does not depend on the installed fonts.
constexpr double ascent(double size) {
    return std::round(size * 0.95);
}
constexpr double lineHeight(double size) {
    return std::ceil(size * 1.25);
}

std::string percent(double fraction) {
    return fmt::format("{}%", std::llround(fraction * 100));
}

std::string figures(const GoalProgress& goal) {
    if (goal.isProductivity) return percent(goal.currentScore) + " / " + percent(goal.targetScore);
    return hm(goal.currentSeconds) + " / " + hm(goal.targetSeconds);
}

// A text without a position yet.
struct Line {
    std::string text;
    FontSpec font;
    Color color = ink;
    double tracking = 0;
};

struct Metric {
    const char* label;
    std::string value;
    const char* symbol = "";  // before the value
};

// The monospaced family has a check mark and no star.
constexpr FontSpec starFont(double size) {
    return fathom::sans(size, FontWeight::light);
}

// Goes down the page.
class PageWriter final {
public:
    explicit PageWriter(const TextWidth& textWidth) : textWidth_(textWidth) { page_.paper = paper; }

    void writeHeading(const std::string& periodTitle) {
        const Line word{std::string(fathom::wordmark), fathom::serif(26, FontWeight::regular), ink, 4};
        const double stop = pageLeft + widthOf(word) + word.tracking;
        put(word, pageLeft, stop - pageLeft);
        put({".", word.font, green}, stop, 20);
        putRight({periodTitle, fathom::mono(11, FontWeight::medium), mute}, pageRight, textColumn / 2,
                 baseline(word.font.size));
        advance(lineHeight(word.font.size) + 2);
        writeLine({"Reporte de productividad", fathom::serif(15, FontWeight::regular)});
    }

    void writeRule() {
        advance(aroundRule);
        page_.boxes.push_back({pageLeft, y_, textColumn, ruleHeight, line});
        advance(ruleHeight + aroundRule);
    }

    void writeMetrics(const std::vector<Metric>& metrics) {
        double x = pageLeft;
        for (const auto& metric : metrics) {
            putStat(metric, fathom::mono(22, FontWeight::light), x, metricColumn);
            x += metricColumn;
        }
        advance(statHeight(22));
    }

    void writeStats(const std::vector<Metric>& stats) {
        constexpr double spacing = 24;
        advance(18);
        const auto font = fathom::mono(20, FontWeight::light);
        double x = pageLeft;
        for (const auto& stat : stats) {
            const double width = std::ceil(
                std::max(widthOf(label(stat)), widthOfSymbol(stat, font) + widthOf({stat.value, font})));
            putStat(stat, font, x, width);
            x += width + spacing;
        }
        advance(statHeight(font.size));
    }

    void writeSectionTitle(const char* title) {
        writeLine({title, fathom::serif(9, FontWeight::medium), ink, 2.5});
        advance(6);
    }

    void writeGoals(std::span<const GoalProgress> goals) {
        constexpr double figuresColumn = 130;
        constexpr double checkColumn = 14;
        constexpr double spacing = 10;
        const double barRight = pageRight - checkColumn - figuresColumn - 2 * columnGap;
        for (const auto& goal : goals) {
            const bool reached = goal.fraction >= 1;
            putName(std::string(goal.label));
            putBar(barRight, goal.fraction, reached ? green : green.at(0.6));
            putFigures(figures(goal), pageRight - checkColumn - columnGap, figuresColumn);
            if (reached) {
                putRight({"✓", fathom::mono(11, FontWeight::medium), green}, pageRight, checkColumn,
                         baseline(rowSize));
            }
            advance(lineHeight(rowSize) + spacing);
        }
        advance(-spacing);
    }

    void writeApps(std::span<const ReportApp> apps) {
        constexpr double figuresColumn = 70;
        constexpr double spacing = 7;
        const auto top = apps.empty() ? Seconds(1) : std::max(apps.front().seconds, Seconds(1));
        for (const auto& app : apps) {
            putName(app.name);
            putBar(pageRight - figuresColumn - columnGap,
                   static_cast<double>(app.seconds.count()) / static_cast<double>(top.count()),
                   green.at(0.8));
            putFigures(hm(app.seconds), pageRight, figuresColumn);
            advance(lineHeight(rowSize) + spacing);
        }
    }

    void writeFooter(const std::string& generated) {
        const auto font = fathom::mono(8, FontWeight::regular);
        y_ = ReportPage::height - margin - lineHeight(font.size);
        put({"Generado por Fathom · " + generated, font, mute}, pageLeft, textColumn / 2);
        putRight({"brightlooms · fathom", font, mute}, pageRight, textColumn / 2, baseline(font.size));
    }

    [[nodiscard]] ReportPage finish(std::string title) && {
        page_.title = std::move(title);
        return std::move(page_);
    }

private:
    static constexpr double rowSize = 11;
    static constexpr double labelSize = 8;
    static constexpr double belowLabel = 4;

    static double statHeight(double valueSize) {
        return lineHeight(labelSize) + belowLabel + lineHeight(valueSize);
    }
    static Line label(const Metric& metric) {
        return {metric.label, fathom::serif(labelSize, FontWeight::medium), mute, 2};
    }

    void advance(double points) { y_ += points; }

    [[nodiscard]] double baseline(double size) const { return y_ + ascent(size); }
    [[nodiscard]] double widthOf(const Line& text) const {
        return textWidth_(text.text, text.font, text.tracking);
    }

    // Including the following space, which in a monospaced family is as wide as a digit.
    [[nodiscard]] double widthOfSymbol(const Metric& metric, const FontSpec& valueFont) const {
        const double width = widthOf({metric.symbol, starFont(valueFont.size)});
        return width > 0 ? width + widthOf({"0", valueFont}) : 0;
    }

    void putAt(Line text, double x, double baseline, double width, PageText::Alignment alignment) {
        page_.texts.push_back(
            {std::move(text.text), text.font, text.color, text.tracking, x, baseline, width, alignment});
    }
    void put(Line text, double x, double width) {
        const double below = baseline(text.font.size);
        putAt(std::move(text), x, below, width, PageText::Alignment::left);
    }
    void putRight(Line text, double right, double width, double baseline) {
        putAt(std::move(text), right - width, baseline, width, PageText::Alignment::right);
    }
    void writeLine(Line text) {
        const double height = lineHeight(text.font.size);
        put(std::move(text), pageLeft, textColumn);
        advance(height);
    }

    void putStat(const Metric& metric, const FontSpec& valueFont, double x, double width) {
        put(label(metric), x, width);
        const double valueBaseline = y_ + lineHeight(labelSize) + belowLabel + ascent(valueFont.size);
        const double symbolWidth = widthOfSymbol(metric, valueFont);
        if (symbolWidth > 0) {
            const Line symbol{metric.symbol, starFont(valueFont.size)};
            putAt(symbol, x, valueBaseline, widthOf(symbol), PageText::Alignment::left);
        }
        putAt({metric.value, valueFont}, x + symbolWidth, valueBaseline, width - symbolWidth,
              PageText::Alignment::left);
    }

    void putName(std::string name) {
        put({std::move(name), fathom::sans(rowSize, FontWeight::regular)}, pageLeft, nameColumn);
    }
    void putFigures(std::string text, double right, double width) {
        auto font = fathom::mono(10, FontWeight::regular);
        font.digits = Digits::monospaced;
        putRight({std::move(text), font}, right, width, baseline(rowSize));
    }
    // As high as the capitals beside it, from the baseline up.
    void putBar(double right, double fraction, const Color& color) {
        const double left = pageLeft + nameColumn + columnGap;
        const double top = baseline(rowSize) - barHeight;
        page_.boxes.push_back({left, top, right - left, barHeight, line, barRadius});
        const double filled = (right - left) * std::clamp(fraction, 0.0, 1.0);
        if (filled > 0) page_.boxes.push_back({left, top, filled, barHeight, color, barRadius});
    }

    const TextWidth& textWidth_;
    ReportPage page_;
    double y_ = margin;
};

}  // namespace

ReportPage layOutReport(const ReportData& data, const TextWidth& textWidth) {
    PageWriter writer(textWidth);
    writer.writeHeading(data.periodTitle);
    writer.writeRule();
    writer.writeMetrics({{"TIEMPO TOTAL", hm(data.totalSeconds)},
                         {"PRODUCTIVIDAD", data.scorePct > 0 ? percent(data.scorePct) : "—"},
                         {"DÍAS ACTIVOS", std::to_string(data.activeDays)},
                         {"PROMEDIO/DÍA", hm(data.avgDailySeconds)}});
    writer.writeRule();
    writer.writeSectionTitle("CUMPLIMIENTO DE METAS");
    writer.writeGoals(data.goals);
    writer.writeStats({{"ESTRELLAS DEL MES", std::to_string(data.starsMonth), "★"},
                       {"RACHA", fmt::format("{} días", data.streak)}});
    writer.writeRule();
    writer.writeSectionTitle("APLICACIONES MÁS USADAS");
    writer.writeApps(data.topApps);
    writer.writeFooter(data.generated);
    return std::move(writer).finish("Reporte de productividad · " + data.periodTitle);
}

}  // namespace tidewatch
