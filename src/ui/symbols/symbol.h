#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QPainterPath>
#include <QQuickPaintedItem>

namespace tidewatch {

/// A symbol from the symbol table, in one colour, `side` pixels high and wide. An unknown name draws nothing.
class Symbol : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    Q_PROPERTY(double side READ side WRITE setSide NOTIFY sideChanged FINAL)
    /// Clockwise rotation in degrees; antialiased, unlike the item's own rotation. The item must be larger
    /// than `side` so as not to clip the corners.
    Q_PROPERTY(double turn READ turn WRITE setTurn NOTIFY turnChanged FINAL)

public:
    explicit Symbol(QQuickItem* parent = nullptr);

    [[nodiscard]] QString name() const { return name_; }
    void setName(const QString& name);
    [[nodiscard]] QColor color() const { return color_; }
    void setColor(const QColor& color);
    [[nodiscard]] double side() const { return side_; }
    void setSide(double side);
    [[nodiscard]] double turn() const { return turn_; }
    void setTurn(double turn);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void nameChanged();
    void colorChanged();
    void sideChanged();
    void turnChanged();

protected:
    void geometryChange(const QRectF& to, const QRectF& from) override;

private:
    QString name_;
    QPainterPath shape_;
    QColor color_ = Qt::black;
    double side_ = 0;
    double turn_ = 0;
};

}  // namespace tidewatch
