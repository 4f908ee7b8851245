#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QIcon>
#include <QPainterPath>
#include <QPixmap>
#include <QQuickPaintedItem>

namespace tidewatch {

/// An application's icon, `side` pixels high and wide: from the desktop, or one of our symbols. If the
/// desktop has no such icon, or one that must not be opened, a generic application symbol.
class AppIconView : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    /// A name of the desktop's icon theme, or the absolute path of a picture; empty for none.
    Q_PROPERTY(QString iconName READ iconName WRITE setIconName NOTIFY iconNameChanged FINAL)
    /// A name of the symbol table, shown instead of an icon; empty for none.
    Q_PROPERTY(QString symbolName READ symbolName WRITE setSymbolName NOTIFY symbolNameChanged FINAL)
    /// Of the symbol.
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    Q_PROPERTY(double side READ side WRITE setSide NOTIFY sideChanged FINAL)

public:
    explicit AppIconView(QQuickItem* parent = nullptr);

    [[nodiscard]] QString iconName() const { return iconName_; }
    void setIconName(const QString& name);
    [[nodiscard]] QString symbolName() const { return symbolName_; }
    void setSymbolName(const QString& name);
    [[nodiscard]] QColor color() const { return color_; }
    void setColor(const QColor& color);
    [[nodiscard]] double side() const { return side_; }
    void setSide(double side);

    /// Whether the desktop's icon is shown rather than a symbol.
    [[nodiscard]] bool showsIcon() const { return !icon_.isNull(); }

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void iconNameChanged();
    void symbolNameChanged();
    void colorChanged();
    void sideChanged();

private:
    void updatePicture();

    QString iconName_;
    QString symbolName_;
    QColor color_ = Qt::black;
    double side_ = 0;
    QIcon icon_;
    QPainterPath symbol_;
    // The rendered icon: rendering can take milliseconds.
    QPixmap rendered_;
};

}  // namespace tidewatch
