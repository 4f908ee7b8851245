#pragma once

#include <qqmlregistration.h>
#include <QQuickPaintedItem>

namespace tidewatch {

/// The shading and hairlines of laid paper behind the dashboard. Ignores clicks.
class EditorialPaperGrain : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit EditorialPaperGrain(QQuickItem* parent = nullptr);
    void paint(QPainter* painter) override;
};

/// CRT scan lines behind the dashboard. Ignores clicks.
class HackerScanlines : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit HackerScanlines(QQuickItem* parent = nullptr);
    void paint(QPainter* painter) override;
};

}  // namespace tidewatch
