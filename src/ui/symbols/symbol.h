#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QPainterPath>
#include <QQuickPaintedItem>

namespace tidewatch {

/// A symbol by its name in the symbol table, in one colour, as high and wide as its `side`.
/// A name that is not in the table draws nothing.
class Symbol : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    Q_PROPERTY(double side READ side WRITE setSide NOTIFY sideChanged FINAL)
    /// Degrees clockwise that the drawing is turned by; smooth, unlike the item's own rotation. What is
    /// turned needs an item larger than its `side` so as to keep its corners.
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
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    QString name_;
    QPainterPath shape_;
    QColor color_ = Qt::black;
    double side_ = 0;
    double turn_ = 0;
};

}  // namespace tidewatch
