#include "analysis/report/report_page.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "tests/analysis/report/page_lines.h"
#include "tests/analysis/report/report_cases.h"

namespace tidewatch {
namespace {

// A typeface in which every letter is six tenths of its size wide.
double plainWidth(std::string_view text, const FontSpec& font, double tracking) {
    const auto letters = std::ranges::count_if(text, [](char byte) { return (byte & 0xC0) != 0x80; });
    return static_cast<double>(letters) * (0.6 * font.size + tracking) - tracking;
}

std::string golden(const std::string& name) {
    std::ifstream file(std::string(TIDEWATCH_REPORT_GOLDEN) + "/" + name + ".txt");
    EXPECT_TRUE(file) << "no golden file for " << name;
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

const PageText& textOf(const ReportPage& page, std::string_view text) {
    const auto found = std::ranges::find(page.texts, text, &PageText::text);
    if (found == page.texts.end()) throw std::runtime_error("no text " + std::string(text));
    return *found;
}

bool hasText(const ReportPage& page, std::string_view text) {
    return std::ranges::find(page.texts, text, &PageText::text) != page.texts.end();
}

class ReportPageCase : public testing::TestWithParam<test::ReportCase> {};

TEST_P(ReportPageCase, IsTheGoldenPage) {
    EXPECT_EQ(test::described(layOutReport(GetParam().data, plainWidth)), golden(GetParam().name));
}

TEST_P(ReportPageCase, StaysWithinItsFrame) {
    const auto page = layOutReport(GetParam().data, plainWidth);
    for (const auto& text : page.texts) {
        EXPECT_GE(text.x, 60) << text.text;
        EXPECT_LE(text.x + text.width, ReportPage::width - 60 + 0.01) << text.text;
        EXPECT_LE(text.baseline, ReportPage::height - 60) << text.text;
    }
    for (const auto& box : page.boxes) {
        EXPECT_GE(box.x, 60);
        EXPECT_LE(box.x + box.width, ReportPage::width - 60 + 0.01);
    }
}

INSTANTIATE_TEST_SUITE_P(Months, ReportPageCase, testing::ValuesIn(test::reportCases()),
                         [](const auto& month) { return month.param.name; });

TEST(ReportPageTest, AScoreIsRoundedToTheNearestPerCentHalvesUp) {
    auto data = test::fullMonth();
    data.scorePct = 0.835;
    EXPECT_TRUE(hasText(layOutReport(data, plainWidth), "84%"));
    data.scorePct = 0.004;
    EXPECT_TRUE(hasText(layOutReport(data, plainWidth), "0%"));
    data.scorePct = 0;
    EXPECT_TRUE(hasText(layOutReport(data, plainWidth), "—"));
}

TEST(ReportPageTest, AFractionAboveOneFillsTheBarAndKeepsTheRealFigures) {
    auto data = test::fullMonth();
    data.goals[0] = {"Hoy", test::hours(15), test::hours(6), 2.5};
    const auto page = layOutReport(data, plainWidth);
    EXPECT_TRUE(hasText(page, "15h 0m / 6h 0m"));
    const auto track = page.boxes[2];
    const auto fill = page.boxes[3];
    EXPECT_EQ(fill.width, track.width);
    EXPECT_EQ(fill.x, track.x);
    EXPECT_EQ(std::ranges::count(page.texts, "✓", &PageText::text), 3);
}

TEST(ReportPageTest, AFractionJustBelowOneHasNoCheckMark) {
    auto data = test::emptyMonth();
    data.goals[0].fraction = 0.9999;
    EXPECT_FALSE(hasText(layOutReport(data, plainWidth), "✓"));
    data.goals[0].fraction = 1;
    EXPECT_TRUE(hasText(layOutReport(data, plainWidth), "✓"));
}

TEST(ReportPageTest, DurationsAreHoursAndMinutes) {
    auto data = test::emptyMonth();
    data.totalSeconds = Seconds(59);
    EXPECT_EQ(textOf(layOutReport(data, plainWidth), "TIEMPO TOTAL").text, "TIEMPO TOTAL");
    EXPECT_TRUE(hasText(layOutReport(data, plainWidth), "0m"));
    data.totalSeconds = Seconds(3600);
    EXPECT_TRUE(hasText(layOutReport(data, plainWidth), "1h 0m"));
    data.totalSeconds = Seconds(5400);
    EXPECT_TRUE(hasText(layOutReport(data, plainWidth), "1h 30m"));
}

TEST(ReportPageTest, TheStopFollowsTheWordAndTheFooterIsAtTheFoot) {
    const auto page = layOutReport(test::fullMonth(), plainWidth);
    const auto& word = textOf(page, "FATHOM");
    const auto& stop = textOf(page, ".");
    EXPECT_DOUBLE_EQ(stop.x, word.x + 6 * (0.6 * 26 + 4));
    EXPECT_EQ(stop.baseline, word.baseline);
    EXPECT_EQ(textOf(page, "MES · Noviembre 2026").baseline, word.baseline);
    EXPECT_GT(textOf(page, "brightlooms · fathom").baseline, 720);
}

}  // namespace
}  // namespace tidewatch
