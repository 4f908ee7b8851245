#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QQuickPaintedItem>

namespace tidewatch {

/// The dial of a gauge: an arc around the top, filled from its left end, with ticks inside it. As large as
/// fits into the item.
class GaugeDial : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY scaleChanged FINAL)
    Q_PROPERTY(double scaleMax READ scaleMax WRITE setScaleMax NOTIFY scaleChanged FINAL)
    /// Of the whole arc, in degrees.
    Q_PROPERTY(double sweep READ sweep WRITE setSweep NOTIFY scaleChanged FINAL)
    /// Where the value is, in degrees clockwise from the top.
    Q_PROPERTY(double angle READ angle NOTIFY scaleChanged FINAL)
    /// Up to where the arc is filled, in the same degrees: may lag behind `angle`.
    Q_PROPERTY(double shownAngle READ shownAngle WRITE setShownAngle NOTIFY shownAngleChanged FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorsChanged FINAL)
    Q_PROPERTY(QColor track READ track WRITE setTrack NOTIFY colorsChanged FINAL)
    Q_PROPERTY(QColor tickColor READ tickColor WRITE setTickColor NOTIFY colorsChanged FINAL)
    /// Of the arc, in pixels.
    Q_PROPERTY(double thickness READ thickness WRITE setThickness NOTIFY colorsChanged FINAL)
    /// Pixels per point of the ticks.
    Q_PROPERTY(double unit READ unit WRITE setUnit NOTIFY colorsChanged FINAL)

public:
    explicit GaugeDial(QQuickItem* parent = nullptr);

    [[nodiscard]] double value() const { return value_; }
    void setValue(double value);
    [[nodiscard]] double scaleMax() const { return scaleMax_; }
    void setScaleMax(double max);
    [[nodiscard]] double sweep() const { return sweep_; }
    void setSweep(double sweep);
    /// Of `value` on a scale from 0 to `scaleMax`, clamped to the arc.
    [[nodiscard]] double angle() const;
    [[nodiscard]] double shownAngle() const { return shownAngle_; }
    void setShownAngle(double angle);
    [[nodiscard]] QColor color() const { return color_; }
    void setColor(const QColor& color);
    [[nodiscard]] QColor track() const { return track_; }
    void setTrack(const QColor& track);
    [[nodiscard]] QColor tickColor() const { return tickColor_; }
    void setTickColor(const QColor& color);
    [[nodiscard]] double thickness() const { return thickness_; }
    void setThickness(double thickness);
    [[nodiscard]] double unit() const { return unit_; }
    void setUnit(double unit);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void scaleChanged();
    void shownAngleChanged();
    void colorsChanged();

private:
    template <class Value>
    void change(Value& value, const Value& to, void (GaugeDial::*changed)());
    void paintTicks(QPainter& painter, double radius) const;

    double value_ = 0;
    double scaleMax_ = 1;
    double sweep_ = 270;
    double shownAngle_ = -135;
    QColor color_ = Qt::black;
    QColor track_ = Qt::transparent;
    QColor tickColor_ = Qt::transparent;
    double thickness_ = 10;
    double unit_ = 1;
};

}  // namespace tidewatch
