// Names of applications and projects that are long, empty, right-to-left or look like markup.

#include <gtest/gtest.h>

#include <QTest>
#include <chrono>
#include <string>

#include "shell/views/stats_view_fixture.h"

namespace tidewatch {
namespace {

using std::chrono::seconds;

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
    processEvents();
    ASSERT_NE(item("bubble"), nullptr);
    EXPECT_EQ(item("bubble")->property("text").toString(), words);
    QTest::mouseMove(&window_, {4, 4});
    processEvents();
    EXPECT_EQ(item("bubble"), nullptr);
}

TEST_F(StatsViewTest, ANameThatFitsNeedsNoBubble) {
    showTab(projectsTab);
    auto* title = showing("Sitio web");
    ASSERT_NE(title, nullptr);
    QTest::mouseMove(&window_, middle(*title));
    processEvents();
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

}  // namespace
}  // namespace tidewatch
