#pragma once

#include <qqmlregistration.h>
#include <QQuickPaintedItem>

namespace tidewatch {

/// The light and the hairlines of laid paper, behind the dashboard. Takes no clicks.
class EditorialPaperGrain : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit EditorialPaperGrain(QQuickItem* parent = nullptr);
    void paint(QPainter* painter) override;
};

/// The lines of an old screen, behind the dashboard. Takes no clicks.
class HackerScanlines : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit HackerScanlines(QQuickItem* parent = nullptr);
    void paint(QPainter* painter) override;
};

}  // namespace tidewatch
