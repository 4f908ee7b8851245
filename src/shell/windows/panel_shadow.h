#pragma once

#include <QQuickPaintedItem>

namespace tidewatch {

/// The soft shadow that a rounded panel casts around itself.
class PanelShadow final : public QQuickPaintedItem {
public:
    /// How far the shadow reaches beyond the panel, in points.
    static constexpr double reach = 18;

    explicit PanelShadow(QQuickItem* parent);

    /// Of the panel that the shadow belongs to, in points.
    void setCornerRadius(double radius);

    void paint(QPainter* painter) override;

private:
    double cornerRadius_ = 0;
};

}  // namespace tidewatch
