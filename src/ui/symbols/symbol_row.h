#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QPainterPath>
#include <QQuickPaintedItem>

namespace tidewatch {

/// A row of symbols in one drawing, so that small ones are spaced evenly. Names and colours correspond by
/// index; extra elements of the longer list are ignored.
class SymbolRow : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QStringList names READ names WRITE setNames NOTIFY namesChanged FINAL)
    Q_PROPERTY(QList<QColor> colors READ colors WRITE setColors NOTIFY colorsChanged FINAL)
    /// Side of one symbol, in pixels.
    Q_PROPERTY(double side READ side WRITE setSide NOTIFY metricsChanged FINAL)
    /// Pixels between two symbols.
    Q_PROPERTY(double spacing READ spacing WRITE setSpacing NOTIFY metricsChanged FINAL)

public:
    explicit SymbolRow(QQuickItem* parent = nullptr);

    [[nodiscard]] QStringList names() const { return names_; }
    void setNames(const QStringList& names);
    [[nodiscard]] QList<QColor> colors() const { return colors_; }
    void setColors(const QList<QColor>& colors);
    [[nodiscard]] double side() const { return side_; }
    void setSide(double side);
    [[nodiscard]] double spacing() const { return spacing_; }
    void setSpacing(double spacing);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void namesChanged();
    void colorsChanged();
    void metricsChanged();

protected:
    void geometryChange(const QRectF& to, const QRectF& from) override;

private:
    [[nodiscard]] double length() const;
    void updateLength();

    QStringList names_;
    QList<QColor> colors_;
    double side_ = 0;
    double spacing_ = 0;
};

}  // namespace tidewatch
