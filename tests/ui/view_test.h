#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QStringList>

#include "ui/ui_scene.h"

namespace tidewatch {

/// A test of views on a `Scene`, which is a UiScene. A warning from QML fails it.
template <class Scene>
struct ViewTest : testing::Test, Scene {
    ViewTest() { QAccessible::setActive(true); }
    ~ViewTest() override {
        EXPECT_TRUE(this->viewWarnings_.isEmpty()) << this->viewWarnings_.join("\n").toStdString();
    }

    static void processEvents() {
        for (int turn = 0; turn < 3; ++turn) QCoreApplication::processEvents();
    }

    [[nodiscard]] QQuickItem& the(const QString& name) const {
        auto* found = this->item(name);
        if (found == nullptr) qFatal("no item \"%s\"", qPrintable(name));
        return *found;
    }
    [[nodiscard]] QString textOf(const char* name) const { return the(name).property("text").toString(); }

    /// The item with this name below another one.
    [[nodiscard]] static QQuickItem* below(QQuickItem& root, const QString& name) {
        QList<QQuickItem*> open{&root};
        while (!open.isEmpty()) {
            auto* next = open.takeFirst();
            if (next->objectName() == name) return next;
            open.append(next->childItems());
        }
        return nullptr;
    }

    [[nodiscard]] static QString nameOf(QQuickItem& shown) {
        return QAccessible::queryAccessibleInterface(&shown)->text(QAccessible::Name);
    }

    /// Of all that assistive technology finds in the window.
    [[nodiscard]] QStringList accessibleNames() {
        QStringList names;
        QList<QAccessibleInterface*> open{QAccessible::queryAccessibleInterface(&this->window_)};
        while (!open.isEmpty()) {
            auto* found = open.takeFirst();
            if (!found) continue;
            names.append(found->text(QAccessible::Name));
            for (int child = 0; child < found->childCount(); ++child) open.append(found->child(child));
        }
        return names;
    }

    /// Fails for each visible text that is elided, is larger than its place, or reaches beyond this width.
    /// `mayBeElided` are those that hold names.
    void expectNothingCutOff(double width, const QStringList& mayBeElided = {}) {
        QList<QQuickItem*> open{this->view_.get()};
        while (!open.isEmpty()) {
            auto* next = open.takeFirst();
            if (!next->isVisible()) continue;
            open.append(next->childItems());
            const auto words = next->property("text").toString();
            if (!next->inherits("QQuickText") || words.isEmpty()) continue;
            EXPECT_TRUE(!next->property("truncated").toBool() || mayBeElided.contains(words))
                << qPrintable(words);
            EXPECT_LE(next->property("contentWidth").toDouble(), next->width() + 0.5) << qPrintable(words);
            EXPECT_LE(Scene::placeOf(*next).right(), width) << qPrintable(words);
            EXPECT_GE(Scene::placeOf(*next).left(), 0) << qPrintable(words);
        }
    }
};

}  // namespace tidewatch
