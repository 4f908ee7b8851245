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

/// A window of the software scene graph with whatever view the components make, in any theme.
class UiScene {
public:
    UiScene();
    virtual ~UiScene();

    /// Shows what `source` makes with these properties, in a window of this size. The toolkit and the style
    /// are imported already.
    void show(const QString& source, QSize size = {480, 320}, const QVariantMap& properties = {});

    /// The item of the view of this name; nothing if there is none.
    [[nodiscard]] QQuickItem* item(const QString& name) const;

    [[nodiscard]] QVariant seen(const char* property) const { return view_->property(property); }

    /// Presses and releases a key in the window.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// Presses and releases the left button in the middle of `target`, or at this place in it.
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
