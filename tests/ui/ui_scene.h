#pragma once

#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStringList>
#include <QVariantMap>
#include <memory>

#include "core/broadcaster.h"
#include "core/settings.h"
#include "platform/fake/memory_preferences.h"
#include "shell/themes/theme_controller.h"
#include "shell/themes/theme_registry.h"

namespace tidewatch {

/// A software-rendered window with a view made of the components, in any theme.
class UiScene {
public:
    UiScene();
    virtual ~UiScene();

    /// Shows the QML `source` with these properties in a window of this size. Qt Quick and the style are
    /// already imported.
    void show(const QString& source, QSize size = {480, 320}, const QVariantMap& properties = {});

    /// The view's item with this objectName, or null.
    [[nodiscard]] QQuickItem* item(const QString& name) const;

    [[nodiscard]] QVariant seen(const char* property) const { return view_->property(property); }

    /// Presses and releases a key in the window.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// Clicks the centre of `target`, or this position in it.
    void click(const QQuickItem& target);
    void click(const QQuickItem& target, QPointF place);

    /// The item's rectangle in the window.
    [[nodiscard]] static QRectF placeOf(const QQuickItem& shown);

    [[nodiscard]] QImage picture();

    platform::MemoryPreferences preferences_;
    Settings settings_{preferences_};
    Broadcaster broadcaster_;
    ThemeRegistry themes_;
    ThemeController theme_{themes_, settings_, broadcaster_};
    QQmlEngine engine_;
    QQuickWindow window_;
    std::unique_ptr<QQuickItem> view_;
    QStringList viewWarnings_;
};

}  // namespace tidewatch
