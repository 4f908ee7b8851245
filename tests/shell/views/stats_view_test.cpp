// The layout of every tab.

#include <gtest/gtest.h>

#include <QAccessible>
#include <array>
#include <chrono>
#include <string>

#include "base/calendar_day.h"
#include "shell/views/stats_view_fixture.h"

namespace tidewatch {
namespace {

TEST_F(StatsViewTest, EveryTabLoadsInEveryThemeWithoutAWarning) {
    for (const auto& theme : services_.themes.themes()) {
        theme_.switchTo(theme.id);
        for (int tab = 0; tab < presenter_.tabs().size(); ++tab) {
            SCOPED_TRACE(theme.id + " " + presenter_.tabs()[tab].toStdString());
            showTab(tab);
            EXPECT_EQ(picture().size(), QSize(1360, 1000));
        }
    }
}

TEST_F(StatsViewTest, NothingIsCutOffAtTheSmallestSizeButTheNamesOfApplications) {
    QStringList names;
    for (const auto& app : services_.counting.apps.aggregate(std::array{today()})) {
        names.append(QString::fromStdString(services_.classification.appInfo.info(app.app).name));
    }
    for (int tab = 0; tab < presenter_.tabs().size(); ++tab) {
        SCOPED_TRACE(presenter_.tabs()[tab].toStdString());
        showTab(tab, {820, 560});
        QList<QQuickItem*> shown;
        collect(*view_, shown);
        for (const auto* found : shown) {
            const auto words = found->property("text").toString();
            if (words.isEmpty() || names.contains(words)) continue;
            EXPECT_FALSE(found->property("truncated").toBool()) << qPrintable(words);
            const auto place = found->mapRectToScene({0, 0, found->width(), found->height()});
            EXPECT_GE(place.left(), 0) << qPrintable(words);
            EXPECT_LE(place.right(), 820) << qPrintable(words);
        }
    }
}

TEST_F(StatsViewTest, NoTwoTextsOverlapAtEitherSize) {
    for (const auto size : {QSize(820, 560), QSize(1360, 1000)}) {
        for (int tab = 0; tab < presenter_.tabs().size(); ++tab) {
            SCOPED_TRACE(presenter_.tabs()[tab].toStdString());
            showTab(tab, size);
            QList<QQuickItem*> shown;
            collect(*view_, shown);
            QList<std::pair<QRectF, QString>> texts;
            for (const auto* found : shown) {
                if (!found->inherits("QQuickText") || found->property("text").toString().isEmpty()) continue;
                const double width = found->property("contentWidth").toDouble();
                const double height = found->property("contentHeight").toDouble();
                const auto place = found->mapRectToScene({(found->width() - width) / 2, 0, width, height});
                texts.append({place.adjusted(1, 2, -1, -2), found->property("text").toString()});
            }
            for (qsizetype one = 0; one < texts.size(); ++one) {
                for (qsizetype other = one + 1; other < texts.size(); ++other) {
                    // The content scrolls below the header, which stays in place.
                    if (texts[other].first.bottom() < 115) continue;
                    EXPECT_FALSE(texts[one].first.intersects(texts[other].first))
                        << qPrintable(texts[one].second) << " and " << qPrintable(texts[other].second);
                }
            }
        }
    }
}

TEST_F(StatsViewTest, AThousandApplicationsMakeFewRowsAndTheLastIsReachedAndReadsRight) {
    const auto day =
        toDayKey(std::chrono::floor<std::chrono::days>(machine_.clock.now()) - std::chrono::days(60));
    for (int app = 0; app < 1000; ++app) {
        const auto id = "app" + std::to_string(app);
        machine_.applications.registerApplication(AppId(id), {id, "", {"IDE"}});
        book(id.c_str(), day, 9, 0, 1 + (app < 999 ? 1 : 0));
    }
    for (int back = 0; back < 60; ++back) dashboard_.header()->previousDay();
    showTab(detailsTab, {820, 560});
    static_cast<void>(picture());
    ASSERT_EQ(dashboard_.details()->rows()->rowCount(), 1000);
    EXPECT_GT(itemsOf("DetailsRow"), 5);
    EXPECT_LT(itemsOf("DetailsRow"), 60);
    item("search")->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Tab);
    key(Qt::Key_End);
    static_cast<void>(picture());
    EXPECT_LT(itemsOf("DetailsRow"), 60);
    auto* last = item("app999");
    ASSERT_NE(last, nullptr);
    EXPECT_EQ(last->findChild<QQuickItem*>("time")->property("text"), "1s");
    const auto* accessible = QAccessible::queryAccessibleInterface(last);
    ASSERT_NE(accessible, nullptr);
    EXPECT_TRUE(accessible->text(QAccessible::Name).startsWith("app999, "));
    const auto place = last->mapRectToScene({0, 0, last->width(), last->height()});
    EXPECT_LT(place.bottom(), 560);
    EXPECT_GT(place.top(), 100);
    presenter_.selectTab(0);
    processEvents();
    static_cast<void>(picture());
    EXPECT_EQ(dashboard_.overview()->productive()->apps()->rowCount(), 1000);
    EXPECT_GT(itemsOf("AppLine"), 5);
    EXPECT_LT(itemsOf("AppLine"), 60);
}

TEST_F(StatsViewTest, ABarOfTenMinutesStandsOnTheFootOfItsCell) {
    showTab(timesheetTab);
    const auto* track = item("track");
    const auto* bar = item("bar");
    ASSERT_TRUE(track && bar);
    EXPECT_EQ(bar->y() + bar->height(), track->y() + track->height());
}

}  // namespace
}  // namespace tidewatch
