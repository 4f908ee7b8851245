#include <gtest/gtest.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QTest>
#include <algorithm>
#include <chrono>

#include "base/calendar_day.h"
#include "shell/views/stats_scene.h"
#include "ui/style/contrast.h"
#include "ui/style/style.h"

namespace tidewatch {
namespace {

using std::chrono::seconds;

constexpr int goalsTab = 1;
constexpr int detailsTab = 2;
constexpr int timesheetTab = 3;
constexpr int projectsTab = 4;

struct StatsViewTest : testing::Test, StatsScene {
    StatsViewTest() {
        bookBelievableWork();
        appear();
    }
    ~StatsViewTest() override {
        EXPECT_TRUE(viewWarnings_.isEmpty()) << viewWarnings_.join("\n").toStdString();
    }

    void showTab(int tab, QSize size = {1360, 1000}) {
        presenter_.selectTab(tab);
        show(size);
        settle();
    }

    static void settle() {
        for (int turn = 0; turn < 3; ++turn) QCoreApplication::processEvents();
    }

    /// The middle of an item, in pixels of the window.
    [[nodiscard]] static QPoint middle(const QQuickItem& shown) {
        return shown.mapToScene({shown.width() / 2, shown.height() / 2}).toPoint();
    }

    void click(const QString& name, Qt::MouseButton button = Qt::LeftButton) {
        auto* target = item(name);
        ASSERT_NE(target, nullptr) << qPrintable(name);
        QTest::mouseClick(&window_, button, {}, middle(*target));
        settle();
    }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&window_, key, modifiers);
        settle();
    }

    [[nodiscard]] QString textOf(const char* name) const { return item(name)->property("text").toString(); }

    /// As the views have colours: in 256 steps a component.
    [[nodiscard]] QString colorOf(const char* name) const {
        return item(name)->property("color").value<QColor>().name();
    }
    [[nodiscard]] QString legible(const QColor& color) {
        return legibleOn(Style::of(engine_)->palette().textGround, color).name();
    }

    /// The first text of the view with these words; nothing if there is none.
    [[nodiscard]] QQuickItem* showing(const QString& words) const {
        QList<QQuickItem*> shown;
        collect(*view_, shown);
        for (auto* found : shown) {
            if (found->inherits("QQuickText") && found->property("text").toString() == words) return found;
        }
        return nullptr;
    }

    /// How many visible items are of that type of view.
    [[nodiscard]] std::ptrdiff_t itemsOf(const QString& type) const {
        QList<QQuickItem*> shown;
        collect(*view_, shown);
        return std::count_if(shown.begin(), shown.end(), [&](const QQuickItem* found) {
            return QString(found->metaObject()->className()).startsWith(type + "_");
        });
    }

    /// Every visible item below `root`, with everything around it visible too.
    static void collect(QQuickItem& root, QList<QQuickItem*>& found) {
        if (!root.isVisible()) return;
        found.append(&root);
        for (auto* child : root.childItems()) collect(*child, found);
    }
};

// Every tab, every theme, every size.

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
                    // The head stays where it is while what lies below it scrolls away under it.
                    if (texts[other].first.bottom() < 115) continue;
                    EXPECT_FALSE(texts[one].first.intersects(texts[other].first))
                        << qPrintable(texts[one].second) << " and " << qPrintable(texts[other].second);
                }
            }
        }
    }
}

// Working it.

TEST_F(StatsViewTest, AClickOnATabAndItsKeyShowIt) {
    show();
    settle();
    const auto tabs = item("tabs")->childItems();
    QTest::mouseClick(&window_, Qt::LeftButton, {}, middle(*tabs.at(goalsTab)));
    settle();
    EXPECT_EQ(presenter_.tabIndex(), goalsTab);
    EXPECT_NE(item("report"), nullptr);
    key(Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(presenter_.tabIndex(), detailsTab);
    EXPECT_NE(item("search"), nullptr);
    EXPECT_EQ(item("report"), nullptr);
    key(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(presenter_.tabIndex(), 0);
}

TEST_F(StatsViewTest, ArrowsGoFromTabToTab) {
    show();
    settle();
    item("tabs")->childItems().at(0)->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Right);
    key(Qt::Key_Right);
    EXPECT_EQ(presenter_.tabIndex(), 2);
    key(Qt::Key_Left);
    EXPECT_EQ(presenter_.tabIndex(), 1);
}

TEST_F(StatsViewTest, TheHeadStepsThroughTheDays) {
    show();
    settle();
    EXPECT_EQ(textOf("date"), "jue 15 ene");
    EXPECT_FALSE(item("nextDay")->isEnabled());
    click("previousDay");
    EXPECT_EQ(textOf("date"), "mié 14 ene");
    EXPECT_TRUE(item("nextDay")->isEnabled());
    click("today");
    EXPECT_EQ(textOf("date"), "jue 15 ene");
}

TEST_F(StatsViewTest, TheRangeIsPicked) {
    show();
    settle();
    auto* scroll = item("session");
    ASSERT_NE(scroll, nullptr);
    const auto week = textOf("sessionDay");
    dashboard_.insights()->selectRange(2);
    settle();
    EXPECT_EQ(item("ranges")->property("currentIndex").toInt(), 2);
    EXPECT_EQ(textOf("sessionDay"), dashboard_.insights()->sessionDay());
    EXPECT_FALSE(week.isEmpty());
}

TEST_F(StatsViewTest, AStepperChangesItsGoalByClickAndByKey) {
    showTab(goalsTab);
    auto* stepper = item("dailyHours");
    ASSERT_NE(stepper, nullptr);
    QTest::mouseClick(&window_, Qt::LeftButton, {}, middle(*stepper) + QPoint(15, 0));
    settle();
    EXPECT_DOUBLE_EQ(services_.goals.store.settings().dailyHours, 6.5);
    item("dailyHours")->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Down);
    EXPECT_DOUBLE_EQ(services_.goals.store.settings().dailyHours, 6);
    EXPECT_EQ(item("dailyHours"), stepper) << "the row was built anew";
}

TEST_F(StatsViewTest, TheSwitchAndTheReportButtonWork) {
    showTab(goalsTab);
    item("notifications")->childItems().first()->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    EXPECT_FALSE(services_.goals.store.settings().notificationsEnabled);
    click("report");
    EXPECT_EQ(reportsAsked_, 1);
}

TEST_F(StatsViewTest, ChipsAndSearchFilterTheTable) {
    showTab(detailsTab);
    const int all = dashboard_.details()->rows()->rowCount();
    click("productivo");
    EXPECT_LT(dashboard_.details()->rows()->rowCount(), all);
    click("productivo");
    EXPECT_EQ(dashboard_.details()->rows()->rowCount(), all);
    click("search");
    for (const auto letter : QString("firef")) QTest::keyClick(&window_, letter.toLatin1());
    settle();
    EXPECT_EQ(dashboard_.details()->rows()->rowCount(), 1);
    key(Qt::Key_Escape);
    EXPECT_EQ(dashboard_.details()->rows()->rowCount(), all);
}

TEST_F(StatsViewTest, TheRightButtonAndTheKeyboardAskForARowsMenu) {
    showTab(detailsTab);
    click("firefox", Qt::RightButton);
    ASSERT_EQ(menusAsked_, std::vector<std::string>{"firefox"});
    item("code")->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Return);
    key(Qt::Key_Down);
    key(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(menusAsked_, (std::vector<std::string>{"firefox", "code", "firefox"}));
}

TEST_F(StatsViewTest, EveryControlIsReachedByTheTabulator) {
    for (int tab = 0; tab < presenter_.tabs().size(); ++tab) {
        SCOPED_TRACE(presenter_.tabs()[tab].toStdString());
        showTab(tab);
        window_.requestActivate();
        QList<QQuickItem*> stops;
        for (int press = 0; press < 40; ++press) {
            QTest::keyClick(&window_, Qt::Key_Tab);
            auto* stop = window_.activeFocusItem();
            if (stop == nullptr || stops.contains(stop)) break;
            stops.append(stop);
            const auto* accessible = QAccessible::queryAccessibleInterface(stop);
            ASSERT_NE(accessible, nullptr) << stop->metaObject()->className();
        }
        // At least the day's buttons, the tabs and what the tab itself has.
        EXPECT_GE(stops.size(), 3);
    }
}

TEST_F(StatsViewTest, ABreakAlertLiesOverAllAndLetsNothingThroughButItsButton) {
    show();
    settle();
    for (int second = 0; second < 7200; ++second)
        services_.wellbeing.breakReminder.tickActiveSecond(Seconds(7200));
    settle();
    EXPECT_TRUE(presenter_.breakAlert()->alertActive());
    QTest::mouseClick(&window_, Qt::LeftButton, {}, middle(*item("tabs")->childItems().at(goalsTab)));
    click("previousDay");
    key(Qt::Key_3, Qt::ControlModifier);
    key(Qt::Key_Escape);
    EXPECT_EQ(presenter_.tabIndex(), 0);
    EXPECT_EQ(textOf("date"), "jue 15 ene");
    EXPECT_TRUE(presenter_.breakAlert()->alertActive());
    key(Qt::Key_Space);
    EXPECT_FALSE(presenter_.breakAlert()->alertActive());
    key(Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(presenter_.tabIndex(), detailsTab);
}

// A day of very many applications.

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
    settle();
    static_cast<void>(picture());
    EXPECT_EQ(dashboard_.overview()->productive()->apps()->rowCount(), 1000);
    EXPECT_GT(itemsOf("AppLine"), 5);
    EXPECT_LT(itemsOf("AppLine"), 60);
}

// Refreshing.

TEST_F(StatsViewTest, ARefreshKeepsScrollFocusAndRows) {
    showTab(detailsTab, {820, 560});
    auto* row = item("firefox");
    ASSERT_NE(row, nullptr);
    row->forceActiveFocus(Qt::TabFocusReason);
    auto* pane = row->parentItem();
    while (!pane->property("contentY").isValid()) pane = pane->parentItem();
    pane->setProperty("contentY", 60.0);
    book("firefox", today(), 16, 30, 120);
    machine_.mainLoop.runFor(seconds(2));
    settle();
    EXPECT_EQ(item("firefox"), row);
    EXPECT_EQ(window_.activeFocusItem(), row);
    EXPECT_DOUBLE_EQ(pane->property("contentY").toDouble(), 60);
}

TEST_F(StatsViewTest, ARefreshThatChangesNothingPaintsNothing) {
    showTab(timesheetTab);
    const auto before = picture();
    machine_.mainLoop.runFor(seconds(4));
    EXPECT_EQ(picture(), before);
}

TEST_F(StatsViewTest, AThemeSwitchRedressesTheOpenWindow) {
    show();
    settle();
    const auto dark = picture().pixelColor(4, 4);
    theme_.switchTo("editorial");
    settle();
    EXPECT_GT(picture().pixelColor(4, 4).lightness(), dark.lightness() + 100);
}

TEST_F(StatsViewTest, TheComparisonOfAPastDayIsLegibleInAThemeThatIsPutOnLater) {
    show();
    settle();
    click("previousDay");
    const auto dark = colorOf("comparison");
    EXPECT_EQ(dark, legible(dashboard_.overview()->comparisonColor()));
    theme_.switchTo("editorial");
    settle();
    EXPECT_NE(colorOf("comparison"), dark);
    EXPECT_EQ(colorOf("comparison"), legible(dashboard_.overview()->comparisonColor()));
}

TEST_F(StatsViewTest, ABreakAlertIsLegibleInAThemeThatIsPutOnWhileItStands) {
    show();
    settle();
    for (int second = 0; second < 7200; ++second)
        services_.wellbeing.breakReminder.tickActiveSecond(Seconds(7200));
    settle();
    const auto dark = colorOf("headline");
    theme_.switchTo("editorial");
    settle();
    const auto& palette = Style::of(engine_)->palette();
    EXPECT_NE(colorOf("headline"), dark);
    EXPECT_EQ(colorOf("headline"), legible(palette.tierDistracting));
    EXPECT_EQ(colorOf("sitting"), legible(palette.tierDistracting));
    EXPECT_EQ(colorOf("title"), legible(palette.tierProductive));
}

// Figures.

TEST_F(StatsViewTest, ABarOfTenMinutesStandsOnTheFootOfItsCell) {
    showTab(timesheetTab);
    const auto* track = item("track");
    const auto* bar = item("bar");
    ASSERT_TRUE(track && bar);
    EXPECT_EQ(bar->y() + bar->height(), track->y() + track->height());
}

// Names that others gave.

TEST_F(StatsViewTest, ALongNameIsOneLineAndToldInFullUnderThePointer) {
    const std::string name = "Un nombre que no cabe " + std::string(50'000, 'a') + "\nsegunda línea";
    bookProject(services_.projects.store.addProject(name).id, "code", today(), 9000);
    machine_.mainLoop.runFor(seconds(2));
    showTab(projectsTab);
    const auto words = "Un nombre que no cabe " + QString(178, 'a') + "…";
    auto* title = showing(words);
    ASSERT_NE(title, nullptr);
    EXPECT_EQ(title->property("lineCount").toInt(), 1);
    EXPECT_TRUE(title->property("truncated").toBool());
    EXPECT_EQ(item("bubble"), nullptr);
    QTest::mouseMove(&window_, middle(*title));
    settle();
    ASSERT_NE(item("bubble"), nullptr);
    EXPECT_EQ(item("bubble")->property("text").toString(), words);
    QTest::mouseMove(&window_, {4, 4});
    settle();
    EXPECT_EQ(item("bubble"), nullptr);
}

TEST_F(StatsViewTest, ANameThatFitsNeedsNoBubble) {
    showTab(projectsTab);
    auto* title = showing("Sitio web");
    ASSERT_NE(title, nullptr);
    QTest::mouseMove(&window_, middle(*title));
    settle();
    EXPECT_EQ(item("bubble"), nullptr);
}

TEST_F(StatsViewTest, ANameWrittenFromTheRightStandsBesideItsIcon) {
    const QString name = "שלום עולם";
    bookProject(services_.projects.store.addProject(name.toStdString()).id, "code", today(), 9000);
    machine_.applications.registerApplication(AppId("hebrew"), {name.toStdString(), "", {"IDE"}});
    book("hebrew", today(), 9, 0, 30000);
    machine_.mainLoop.runFor(seconds(2));
    for (const int tab : {0, detailsTab, timesheetTab, projectsTab}) {
        SCOPED_TRACE(tab);
        showTab(tab);
        auto* shown = showing(name);
        ASSERT_NE(shown, nullptr);
        EXPECT_EQ(shown->property("effectiveHorizontalAlignment").toInt(), Qt::AlignLeft);
    }
}

TEST_F(StatsViewTest, AnEmptyProjectNameIsARowInThePlaceOfTheOthers) {
    bookProject(services_.projects.store.addProject("").id, "code", today(), 9000);
    machine_.mainLoop.runFor(seconds(2));
    showTab(projectsTab);
    auto* title = showing("Sin nombre");
    ASSERT_NE(title, nullptr);
    EXPECT_GT(title->width(), 100);
    EXPECT_GT(contrast(title->property("color").value<QColor>(), Style::of(engine_)->palette().textGround),
              minContrast);
}

TEST_F(StatsViewTest, WhatLooksLikeMarkupIsShownAsItIsWritten) {
    const std::string name = "<b>Negrita</b> <img src='http://127.0.0.1:9/x.png'>";
    bookProject(services_.projects.store.addProject(name).id, "code", today(), 9000);
    machine_.applications.registerApplication(AppId("markup"), {name, "http://127.0.0.1:9/y.png", {"IDE"}});
    book("markup", today(), 9, 0, 30000);
    machine_.mainLoop.runFor(seconds(2));
    for (const int tab : {0, detailsTab, timesheetTab, projectsTab}) {
        SCOPED_TRACE(tab);
        showTab(tab);
        EXPECT_NE(showing(QString::fromStdString(name)), nullptr);
        QList<QQuickItem*> shown;
        collect(*view_, shown);
        for (const auto* found : shown) {
            if (!found->inherits("QQuickText")) continue;
            EXPECT_EQ(found->property("textFormat").toInt(), Qt::PlainText)
                << qPrintable(found->property("text").toString());
        }
    }
}

// For those who listen.

TEST_F(StatsViewTest, ATabIsPressedByTheBus) {
    show();
    settle();
    auto* tab = QAccessible::queryAccessibleInterface(item("tabs")->childItems().at(timesheetTab));
    ASSERT_TRUE(tab != nullptr && tab->actionInterface() != nullptr);
    ASSERT_TRUE(tab->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    tab->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    settle();
    EXPECT_EQ(presenter_.tabIndex(), timesheetTab);
}

TEST_F(StatsViewTest, ADayThatCannotBeGoneToSaysSoAndIsNotGoneTo) {
    show();
    settle();
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
    settle();
    for (const auto* way : {"previousDay", "today"}) {
        click(way);
        settle();
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
    settle();
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
