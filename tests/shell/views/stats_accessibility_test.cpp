// The statistics window for a screen reader.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>
#include <algorithm>
#include <chrono>

#include "shell/views/stats_view_fixture.h"

namespace tidewatch {
namespace {

TEST_F(StatsViewTest, ATabIsPressedByTheBus) {
    show();
    processEvents();
    auto* tab = QAccessible::queryAccessibleInterface(item("tabs")->childItems().at(timesheetTab));
    ASSERT_TRUE(tab != nullptr && tab->actionInterface() != nullptr);
    ASSERT_TRUE(tab->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    tab->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    processEvents();
    EXPECT_EQ(presenter_.tabIndex(), timesheetTab);
}

TEST_F(StatsViewTest, ADayThatCannotBeGoneToSaysSoAndIsNotGoneTo) {
    show();
    processEvents();
    auto* next = QAccessible::queryAccessibleInterface(item("nextDay"));
    EXPECT_EQ(next->text(QAccessible::Description), "no disponible");
    click("previousDay");
    EXPECT_EQ(next->text(QAccessible::Description), "");
}

TEST_F(StatsViewTest, TheRowsOfATierAreReadInTheOrderOfTheScreenAfterAChangeOfDay) {
    // The same applications on both days, in another order.
    const auto yesterday = services_.counting.days.dayKey(machine_.clock.now() - std::chrono::hours(24));
    book("org.libreoffice.writer", yesterday, 9, 0, 90000);
    book("firefox", yesterday, 9, 0, 60000);
    show();
    processEvents();
    for (const auto* way : {"previousDay", "today"}) {
        click(way);
        processEvents();
        auto* list = QAccessible::queryAccessibleInterface(item("apps"));
        ASSERT_NE(list, nullptr);
        QStringList read;
        for (int child = 0; child < list->childCount(); ++child) {
            read.append(list->child(child)->text(QAccessible::Name));
        }
        // The rows are put in their places with the next frame.
        const auto standInOrder = [&] {
            QList<int> places;
            for (int child = 0; child < list->childCount(); ++child) {
                places.append(list->child(child)->rect().top());
            }
            return std::is_sorted(places.begin(), places.end());
        };
        EXPECT_TRUE(QTest::qWaitFor(standInOrder, 30000)) << way;
        const auto* rows = dashboard_.overview()->productive()->apps();
        QStringList shown;
        for (int row = 0; row < rows->rowCount(); ++row) {
            shown.append(rows->index(row).data(RowListModel::rowRole).value<AppRow>().accessibleText);
        }
        EXPECT_EQ(read, shown) << way;
        EXPECT_GT(read.size(), 3);
    }
}

TEST_F(StatsViewTest, ChartsAreSentences) {
    show();
    processEvents();
    QStringList names;
    QList<QQuickItem*> shown;
    collect(*view_, shown);
    for (auto* found : shown) {
        if (const auto* accessible = QAccessible::queryAccessibleInterface(found)) {
            names.append(accessible->text(QAccessible::Name));
        }
    }
    EXPECT_TRUE(names.contains(dashboard_.overview()->hoursAccessibleText()));
    EXPECT_TRUE(names.contains("PRODUCTIVIDAD: 96%, 4h 10m, -2% vs ayer")) << qPrintable(names.join("\n"));
}

}  // namespace
}  // namespace tidewatch
