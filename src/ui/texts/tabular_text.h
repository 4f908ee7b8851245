#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QFont>
#include <QQuickPaintedItem>

#include "ui/texts/tabular_layout.h"

namespace tidewatch {

/// One line of text with tabular digits, in a font of the unscaled drawing, scaled by `unit`. Its implicit
/// size is that of its line; letters are aligned to screen pixels.
class TabularText : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged FINAL)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY layoutChanged FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    Q_PROPERTY(bool equalDigits READ equalDigits WRITE setEqualDigits NOTIFY layoutChanged FINAL)
    /// The width of a space, in the font's pixels; negative for the font's own.
    Q_PROPERTY(double wordGap READ wordGap WRITE setWordGap NOTIFY layoutChanged FINAL)
    /// The maximum width in the font's pixels; a longer line is narrowed, then scaled down. 0 for unlimited.
    Q_PROPERTY(double maximumWidth READ maximumWidth WRITE setMaximumWidth NOTIFY layoutChanged FINAL)
    Q_PROPERTY(double unit READ unit WRITE setUnit NOTIFY layoutChanged FINAL)
    /// A soft shadow under the letters for legibility; transparent for none.
    Q_PROPERTY(QColor shade READ shade WRITE setShade NOTIFY colorChanged FINAL)

public:
    explicit TabularText(QQuickItem* parent = nullptr);

    [[nodiscard]] QString text() const { return text_; }
    void setText(const QString& text);
    [[nodiscard]] QFont font() const { return font_.font(); }
    void setFont(const QFont& font);
    [[nodiscard]] QColor color() const { return color_; }
    void setColor(const QColor& color);
    [[nodiscard]] bool equalDigits() const { return options_.digits == Digits::monospaced; }
    void setEqualDigits(bool equal);
    [[nodiscard]] double wordGap() const { return options_.wordGap; }
    void setWordGap(double gap);
    [[nodiscard]] double maximumWidth() const { return options_.maximumWidth; }
    void setMaximumWidth(double width);
    [[nodiscard]] double unit() const { return unit_; }
    void setUnit(double unit);
    [[nodiscard]] QColor shade() const { return shade_; }
    void setShade(const QColor& shade);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void textChanged();
    void layoutChanged();
    void colorChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF& to, const QRectF& from) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    void relayout();
    void drawShade(QPainter& painter);
    void drawLetters(QPainter& painter, const QColor& color);
    [[nodiscard]] double screenPixel() const;

    QString text_;
    ShapedFont font_;
    QColor color_ = Qt::black;
    QColor shade_ = Qt::transparent;
    TabularOptions options_;
    double unit_ = 1;
    TabularLine line_;
};

}  // namespace tidewatch
