#pragma once

#include <QQuickPaintedItem>

namespace tidewatch {

/// The soft shadow around a rounded panel.
class PanelShadow final : public QQuickPaintedItem {
public:
    /// The extent of the shadow beyond the panel, in points.
    static constexpr double reach = 18;

    explicit PanelShadow(QQuickItem* parent);

    /// The panel's corner radius, in points.
    void setCornerRadius(double radius);

    void paint(QPainter* painter) override;

private:
    double cornerRadius_ = 0;
};

}  // namespace tidewatch
