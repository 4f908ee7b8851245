#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QQuickPaintedItem>

namespace tidewatch {

/// The needle of a gauge, with its hub in the middle of the item.
class Needle : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    /// In degrees clockwise from the top.
    Q_PROPERTY(double angle READ angle WRITE setAngle NOTIFY angleChanged FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)

public:
    explicit Needle(QQuickItem* parent = nullptr);

    [[nodiscard]] double angle() const { return angle_; }
    void setAngle(double angle);
    [[nodiscard]] QColor color() const { return color_; }
    void setColor(const QColor& color);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void angleChanged();
    void colorChanged();

private:
    double angle_ = 0;
    QColor color_ = Qt::black;
};

}  // namespace tidewatch
