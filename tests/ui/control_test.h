#pragma once

#include <gtest/gtest.h>

#include <QAccessible>

#include "ui/ui_scene.h"

namespace tidewatch {

/// A control in a scene, with accessibility switched on. A warning from QML fails the test.
struct ControlTest : testing::Test, UiScene {
    ControlTest() { QAccessible::setActive(true); }

    ~ControlTest() override {
        EXPECT_TRUE(viewWarnings_.isEmpty()) << viewWarnings_.join("\n").toStdString();
    }

    [[nodiscard]] QQuickItem& the(const char* name) const {
        auto* found = item(name);
        if (found == nullptr) qFatal("no item \"%s\"", name);
        return *found;
    }

    [[nodiscard]] int count(const char* property) const { return seen(property).toInt(); }

    /// The ring around `control` is shown.
    [[nodiscard]] static bool showsRing(const QQuickItem& control) {
        for (const auto* child : control.findChildren<QQuickItem*>()) {
            if (QString(child->metaObject()->className()).startsWith("FocusRing") && child->isVisible())
                return true;
        }
        return false;
    }
};

inline QAccessibleInterface& accessible(QQuickItem& item) {
    auto* found = QAccessible::queryAccessibleInterface(&item);
    if (found == nullptr) qFatal("not accessible");
    return *found;
}

inline QString nameOf(QQuickItem& item) {
    return accessible(item).text(QAccessible::Name);
}

inline void act(QQuickItem& item, const QString& action) {
    accessible(item).actionInterface()->doAction(action);
}

}  // namespace tidewatch
