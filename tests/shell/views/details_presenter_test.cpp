// The details.

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <string>
#include <utility>
#include <vector>

#include "shell/views/stats_presenter_fixture.h"

namespace tidewatch {
namespace {

using std::chrono::seconds;

TEST_F(StatsPresenterTest, WithAllChipsOffTheTableIsEmpty) {
    bookBelievableWork();
    showTab(detailsTab);
    EXPECT_FALSE(dashboard_.details()->isEmpty());
    for (const auto* tier : {"productivo", "neutral", "distrayendo", "sincategorizar"})
        dashboard_.details()->toggleTier(tier);
    EXPECT_TRUE(dashboard_.details()->isEmpty());
    EXPECT_EQ(dashboard_.details()->emptyText(), "Sin actividad para los filtros seleccionados.");
}

TEST_F(StatsPresenterTest, TheSearchFindsByNameIdentifierAndCategory) {
    bookBelievableWork();
    showTab(detailsTab);
    for (const auto& [query, count] :
         {std::pair("  VISUAL studio ", 1), std::pair("org.", 6), std::pair("desarrollo", 2)}) {
        dashboard_.details()->setSearchText(query);
        EXPECT_EQ(dashboard_.details()->rows()->rowCount(), count) << query;
    }
}

TEST_F(StatsPresenterTest, ARowAsksForItsMenu) {
    dashboard_.details()->openMenu("code", {10, 20});
    EXPECT_EQ(menusAsked_, std::vector<std::string>{"code"});
}

TEST_F(StatsPresenterTest, ARefreshChangesOnlyTheRowsThatDiffer) {
    book("code", today(), 9, 0, 120);
    book("firefox", today(), 9, 0, 60);
    showTab(detailsTab);
    auto* rows = dashboard_.details()->rows();
    QSignalSpy changed(rows, &QAbstractItemModel::dataChanged);
    QSignalSpy reset(rows, &QAbstractItemModel::modelReset);
    QSignalSpy inserted(rows, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(rows, &QAbstractItemModel::rowsRemoved);
    machine_.mainLoop.runFor(seconds(2));
    EXPECT_EQ(changed.count(), 0);
    book("thunderbird", today(), 9, 0, 30);
    machine_.mainLoop.runFor(seconds(2));
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(removed.count() + reset.count(), 0);
}

}  // namespace
}  // namespace tidewatch
