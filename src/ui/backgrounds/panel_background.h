#pragma once

#include <qqmlregistration.h>
#include <QQuickPaintedItem>

#include "ui/backgrounds/panel_painter.h"

namespace tidewatch {

/// The static background of the clock's panel; repainted only on changes.
class PanelBackgroundItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(PanelBackground)
    Q_PROPERTY(Kind kind READ kind WRITE setKind NOTIFY changed FINAL)
    /// In points of the unscaled drawing.
    Q_PROPERTY(double cornerRadius READ cornerRadius WRITE setCornerRadius NOTIFY changed FINAL)
    /// Pixels to a point of the unscaled drawing.
    Q_PROPERTY(double unit READ unit WRITE setUnit NOTIFY changed FINAL)
    /// Whether the corners are rounded and the desktop may show through.
    Q_PROPERTY(bool translucent READ translucent WRITE setTranslucent NOTIFY changed FINAL)

public:
    enum Kind { Ochre, Editorial, Minimal, Hacker, Liquid };
    Q_ENUM(Kind)

    [[nodiscard]] static Kind toKind(PanelBackground background);

    explicit PanelBackgroundItem(QQuickItem* parent = nullptr);

    [[nodiscard]] Kind kind() const { return kind_; }
    void setKind(Kind kind);
    [[nodiscard]] double cornerRadius() const { return cornerRadius_; }
    void setCornerRadius(double radius);
    [[nodiscard]] double unit() const { return unit_; }
    void setUnit(double unit);
    [[nodiscard]] bool translucent() const { return ground_ == Ground::translucent; }
    void setTranslucent(bool translucent);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

protected:
    void geometryChange(const QRectF& to, const QRectF& from) override;

private:
    void announce();

    Kind kind_ = Ochre;
    double cornerRadius_ = 0;
    double unit_ = 1;
    Ground ground_ = Ground::translucent;
};

}  // namespace tidewatch
