#include "ui/controls/lazy_column.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <algorithm>
#include <vector>

#include "ui/models/stat_tile.h"
#include "ui/ui_scene.h"

namespace tidewatch {
namespace {

/// Rows of 20 in a pane of 200: ten in view.
constexpr auto lazyList = R"(
Item {
    id: root
    property alias contentY: pane.contentY
    property alias listHeight: column.height
    property int made: 0
    property RowListModel rows
    width: 300; height: 200
    ScrollPane {
        id: pane
        objectName: "pane"
        anchors.fill: parent
        LazyColumn {
            id: column
            objectName: "column"
            width: 300
            rowHeight: 20
            model: root.rows
            delegate: FocusScope {
                required property statTile row
                objectName: row.id
                activeFocusOnTab: true
                Component.onCompleted: ++root.made
                PlainText { objectName: "value"; text: row.value }
            }
        }
    }
})";

struct LazyColumnTest : testing::Test, UiScene {
    ~LazyColumnTest() override {
        EXPECT_TRUE(viewWarnings_.isEmpty()) << viewWarnings_.join("\n").toStdString();
    }

    void fill(int count) {
        for (int added = 0; added < count; ++added) tiles_.push_back(tile(static_cast<int>(tiles_.size())));
        rows_.setRows(tiles_);
    }

    static StatTile tile(int index) {
        return {.id = "row" + QString::number(index),
                .symbol = "",
                .title = "",
                .value = QString::number(index),
                .subtitle = ""};
    }

    void open() {
        show(lazyList, {300, 200}, {{"rows", QVariant::fromValue<RowListModel*>(&rows_)}});
        polish();
    }

    void polish() { static_cast<void>(picture()); }

    void apply() {
        rows_.setRows(tiles_);
        polish();
    }

    void scrollTo(double y) {
        view_->setProperty("contentY", y);
        polish();
    }

    [[nodiscard]] LazyColumn& column() const { return *qobject_cast<LazyColumn*>(item("column")); }

    /// The existing rows in tab order, which is that of screen readers.
    [[nodiscard]] QStringList names() const {
        QStringList found;
        for (const auto* row : column().childItems()) found.append(row->objectName());
        return found;
    }

    [[nodiscard]] static QStringList from(int first, int end) {
        QStringList expected;
        for (int index = first; index < end; ++index) expected.append("row" + QString::number(index));
        return expected;
    }

    std::vector<StatTile> tiles_;
    RowList<StatTile> rows_;
};

TEST_F(LazyColumnTest, IsAsHighAsAllItsRowsAndMakesThoseInViewAndSomeAround) {
    fill(1000);
    open();
    EXPECT_EQ(seen("listHeight").toDouble(), 20'000);
    EXPECT_EQ(names(), from(0, 10 + LazyColumn::spareRows));
    EXPECT_EQ(seen("made").toInt(), 10 + LazyColumn::spareRows);
}

TEST_F(LazyColumnTest, AThousandRowsCostAsManyDelegatesAsTwenty) {
    fill(20);
    open();
    const int few = column().delegateCount();
    fill(980);
    polish();
    EXPECT_LE(column().delegateCount(), few + LazyColumn::spareRows);
}

TEST_F(LazyColumnTest, ScrollingBringsTheRowsThatComeIntoViewAndReachesTheLast) {
    fill(1000);
    open();
    scrollTo(400);
    EXPECT_EQ(names(), from(20 - LazyColumn::spareRows, 30 + LazyColumn::spareRows));
    scrollTo(19'800);
    EXPECT_EQ(names(), from(990 - LazyColumn::spareRows, 1000));
    const auto* last = item("row999");
    ASSERT_NE(last, nullptr);
    EXPECT_EQ(placeOf(*last), QRectF(0, 180, 300, 20));
    EXPECT_EQ(last->findChild<QQuickItem*>("value")->property("text"), "999");
}

TEST_F(LazyColumnTest, GoingThroughAllRowsMakesFewDelegates) {
    fill(1000);
    open();
    for (int y = 0; y <= 19'800; y += 100) scrollTo(y);
    EXPECT_LT(seen("made").toInt(), 60);
    EXPECT_LT(column().delegateCount(), 60);
}

TEST_F(LazyColumnTest, RowsKeepTheirDelegatesThroughInsertionRemovalAndMove) {
    fill(30);
    open();
    const auto* third = item("row3");
    tiles_.insert(tiles_.begin(), tile(100));
    apply();
    EXPECT_EQ(item("row3"), third);
    EXPECT_EQ(placeOf(*third).top(), 80);
    tiles_.erase(tiles_.begin(), tiles_.begin() + 2);
    apply();
    EXPECT_EQ(item("row3"), third);
    EXPECT_EQ(placeOf(*third).top(), 40);
    std::rotate(tiles_.begin(), tiles_.begin() + 2, tiles_.begin() + 3);
    apply();
    EXPECT_EQ(item("row3"), third);
    EXPECT_EQ(placeOf(*third).top(), 0);
    EXPECT_EQ(names().mid(0, 4), (QStringList{"row3", "row1", "row2", "row4"}));
}

TEST_F(LazyColumnTest, RowsAreReadAsTheyStandAfterAnyChange) {
    fill(40);
    open();
    std::reverse(tiles_.begin(), tiles_.end());
    apply();
    const auto now = names();
    for (int index = 0; index < now.size(); ++index) {
        EXPECT_EQ(now[index], tiles_[static_cast<std::size_t>(index)].id);
        EXPECT_EQ(item(now[index])->y(), index * 20);
    }
}

TEST_F(LazyColumnTest, AChangedRowIsShownAnew) {
    fill(5);
    open();
    tiles_[2].value = "otro";
    apply();
    EXPECT_EQ(item("row2")->findChild<QQuickItem*>("value")->property("text"), "otro");
}

TEST_F(LazyColumnTest, TheRowWithTheFocusStaysWhereverItIsScrolledTo) {
    fill(1000);
    open();
    auto* row = item("row3");
    row->forceActiveFocus(Qt::TabFocusReason);
    scrollTo(10'000);
    EXPECT_EQ(item("row3"), row);
    EXPECT_EQ(window_.activeFocusItem(), row);
    EXPECT_EQ(names().mid(0, 3), (QStringList{"row2", "row3", "row4"}))
        << "and the tabulator finds its neighbours";
}

TEST_F(LazyColumnTest, ARowThatGoesTakesTheFocusWithItAndDoesNotBringItBackAsAnother) {
    fill(30);
    open();
    item("row3")->forceActiveFocus(Qt::TabFocusReason);
    tiles_.erase(tiles_.begin() + 3);
    apply();
    scrollTo(200);
    for (const auto* row : column().childItems()) EXPECT_FALSE(row->hasActiveFocus());
}

TEST_F(LazyColumnTest, ArrowsGoFromRowToRowAsFarAsThereAreRows) {
    fill(300);
    open();
    item("row0")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Up);
    EXPECT_EQ(window_.activeFocusItem()->objectName(), "row0");
    for (int step = 0; step < 299; ++step) press(Qt::Key_Down);
    EXPECT_EQ(window_.activeFocusItem()->objectName(), "row299");
    press(Qt::Key_Down);
    EXPECT_EQ(window_.activeFocusItem()->objectName(), "row299");
    EXPECT_EQ(placeOf(*item("row299")).bottom(), 200) << "the pane followed";
}

TEST_F(LazyColumnTest, OutOfViewAltogetherItKeepsAFewRowsAtTheNearerEnd) {
    fill(100);
    open();
    column().setY(5000);
    polish();
    EXPECT_EQ(names(), from(0, LazyColumn::spareRows));
    column().setY(-5000);
    polish();
    EXPECT_EQ(names(), from(100 - LazyColumn::spareRows, 100));
}

TEST_F(LazyColumnTest, WithoutRowsItHasNoHeight) {
    open();
    EXPECT_EQ(seen("listHeight").toDouble(), 0);
    EXPECT_EQ(names(), QStringList());
}

}  // namespace
}  // namespace tidewatch
