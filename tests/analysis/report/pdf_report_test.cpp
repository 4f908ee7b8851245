#include "analysis/report/pdf_report.h"

#include <gtest/gtest.h>

#include "analysis/analysis_fixture.h"
#include "analysis/report/page_painter.h"
#include "classification/app_info_resolver.h"

namespace tidewatch {
namespace {

class PdfReportTest : public testing::Test {
protected:
    test::FakeWorld world_;
    test::AnalysisFixture fixture_{world_};
    const AppInfoResolver appInfo_{world_.applications};
    PdfReport report_{{world_.clock, fixture_.days, fixture_.apps, appInfo_, fixture_.scorer,
                       fixture_.goals.evaluator, fixture_.goals.rewards},
                      world_.files,
                      world_.log};
    const std::string path_ = "/home/user/Documentos/fathom-reporte.pdf";
};

TEST_F(PdfReportTest, WritesAPdfToTheGivenPath) {
    fixture_.setTime(DayKey("2026-01-15"), 5000);
    world_.files.put(path_, "an older one");
    EXPECT_TRUE(report_.generate(path_));
    const auto file = world_.files.content(path_).value_or("");
    EXPECT_TRUE(file.starts_with("%PDF-"));
    EXPECT_NE(file.find("%%EOF"), std::string::npos);
    EXPECT_EQ(world_.files.exports(), std::vector<std::string>{path_});
}

TEST_F(PdfReportTest, AFailureIsLoggedAndLeavesTheFileUnchanged) {
    world_.files.put(path_, "an older one");
    world_.files.setDisk(platform::MemoryFileSystem::Disk::full);
    world_.log.expectWarning("PdfReport write: ");
    EXPECT_FALSE(report_.generate(path_));
    EXPECT_EQ(world_.files.content(path_), "an older one");
}

TEST_F(PdfReportTest, TextWidthsAreInPointsAndGrowWithSizeAndTracking) {
    const auto width = pageTextWidth();
    const FontSpec small{FontRole::sans, 10, FontWeight::regular};
    const FontSpec large{FontRole::sans, 20, FontWeight::regular};
    EXPECT_EQ(width("", small, 2), 0.0);
    EXPECT_NEAR(width("Hoja", large, 0), 2 * width("Hoja", small, 0), 0.1);
    EXPECT_NEAR(
        width("Hoja", large, 3),
        width("H", large, 0) + width("o", large, 0) + width("j", large, 0) + width("a", large, 0) + 3 * 3,
        0.1);
    EXPECT_GT(width("Hoja", small, 0), 10);
    EXPECT_LT(width("Hoja", small, 0), 40);
}

}  // namespace
}  // namespace tidewatch
