#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QTest>
#include <algorithm>
#include <cstddef>

#include "shell/views/stats_scene.h"
#include "ui/style/contrast.h"
#include "ui/style/style.h"

namespace tidewatch {

/// The statistics window's view with believable work in it, driven by mouse and keyboard.
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
        processEvents();
    }

    static void processEvents() {
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
        processEvents();
    }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&window_, key, modifiers);
        processEvents();
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

}  // namespace tidewatch
