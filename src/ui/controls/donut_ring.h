#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QQuickPaintedItem>

namespace tidewatch {

/// A ring filled clockwise from 12 o'clock, with round ends. As large as fits into the item.
class DonutRing : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    /// 0 to 1, clamped above; negative for an empty ring.
    Q_PROPERTY(double fraction READ fraction WRITE setFraction NOTIFY fractionChanged FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    /// The colour of the unfilled ring.
    Q_PROPERTY(QColor track READ track WRITE setTrack NOTIFY trackChanged FINAL)
    /// In pixels.
    Q_PROPERTY(double thickness READ thickness WRITE setThickness NOTIFY thicknessChanged FINAL)

public:
    explicit DonutRing(QQuickItem* parent = nullptr);

    [[nodiscard]] double fraction() const { return fraction_; }
    void setFraction(double fraction);
    [[nodiscard]] QColor color() const { return color_; }
    void setColor(const QColor& color);
    [[nodiscard]] QColor track() const { return track_; }
    void setTrack(const QColor& track);
    [[nodiscard]] double thickness() const { return thickness_; }
    void setThickness(double thickness);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void fractionChanged();
    void colorChanged();
    void trackChanged();
    void thicknessChanged();

private:
    template <class Value>
    void change(Value& value, const Value& to, void (DonutRing::*changed)());

    double fraction_ = -1;
    QColor color_ = Qt::black;
    QColor track_ = Qt::transparent;
    double thickness_ = 10;
};

}  // namespace tidewatch
