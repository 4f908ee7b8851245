#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QList>
#include <QQuickPaintedItem>
#include <QRectF>

namespace tidewatch {

/// The base of the games' drawings, which repaint only what has changed. Edges lie on whole screen pixels:
/// where the scale factor is no whole number, the item is a little larger than its drawing and shown a
/// fraction of a pixel aside.
class GameField : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("What the drawings of the games are")
    Q_PROPERTY(QList<QColor> pieceColors READ pieceColors WRITE setPieceColors NOTIFY lookChanged FINAL)
    Q_PROPERTY(QColor plainColor READ plainColor WRITE setPlainColor NOTIFY lookChanged FINAL)
    Q_PROPERTY(QColor ground READ ground WRITE setGround NOTIFY lookChanged FINAL)
    Q_PROPERTY(QColor edge READ edge WRITE setEdge NOTIFY lookChanged FINAL)
    /// Pixels per point of the game's layout.
    Q_PROPERTY(double unit READ unit WRITE setUnit NOTIFY unitChanged FINAL)

public:
    explicit GameField(QQuickItem* parent = nullptr);

    /// The theme's colours, which wrap; may be empty.
    [[nodiscard]] QList<QColor> pieceColors() const { return pieceColors_; }
    void setPieceColors(const QList<QColor>& colors);
    [[nodiscard]] QColor plainColor() const { return plainColor_; }
    void setPlainColor(const QColor& color);
    /// Below everything; transparent for none.
    [[nodiscard]] QColor ground() const { return ground_; }
    void setGround(const QColor& color);
    /// A line around the ground.
    [[nodiscard]] QColor edge() const { return edge_; }
    void setEdge(const QColor& color);
    [[nodiscard]] double unit() const { return unit_; }
    void setUnit(double unit);

    /// What is drawn on, from the top left corner.
    [[nodiscard]] QSizeF drawingSize() const { return layoutSize_ * unit_; }

    void paint(QPainter* painter) final;

Q_SIGNALS:
    void lookChanged();
    void unitChanged();

protected:
    /// Paints what touches `dirty`, in the item's coordinates, over the ground.
    virtual void paintField(QPainter& painter, const QRectF& dirty) = 0;

    /// A rectangle of the layout in the item's coordinates.
    [[nodiscard]] QRectF inItem(const QRectF& rect) const {
        return {rect.topLeft() * unit_, rect.size() * unit_};
    }

    /// `rect`, in the item's coordinates, moved to the nearest screen pixels and of the nearest size in whole
    /// pixels, so that equal rectangles stay equal.
    [[nodiscard]] QRectF onPixels(const QRectF& rect) const;

    /// The theme's colour for `index`, from 0; `otherwise` if the theme has none.
    [[nodiscard]] QColor colorAt(int index, const QColor& otherwise) const;

    /// Repaints this area, in the item's coordinates, with its antialiased edges.
    void repaint(const QRectF& area);

    /// Makes the item as large as necessary for a layout of this size.
    void setLayoutSize(const QSizeF& size);

    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    [[nodiscard]] double pixelRatio() const;

    template <class Value>
    void changeLook(Value& value, const Value& to);

    void coverWholePixels();

    QSizeF layoutSize_;
    double unit_ = 1;
    QList<QColor> pieceColors_;
    QColor plainColor_ = Qt::white;
    QColor ground_ = Qt::transparent;
    QColor edge_ = Qt::transparent;
};

}  // namespace tidewatch
