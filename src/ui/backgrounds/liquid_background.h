#pragma once

#include <qqmlregistration.h>
#include <QPointer>
#include <QQuickPaintedItem>
#include <QQuickWindow>
#include <optional>

#include "ui/backgrounds/frame_ticker.h"
#include "ui/backgrounds/liquid_painter.h"
#include "ui/backgrounds/panel_shape.h"
#include "ui/backgrounds/wall_clock.h"

namespace tidewatch {

/// The animated liquid-crystal background. It is painted at a reduced size and scaled up, and only while
/// `running` is true, the item is visible and its window is exposed.
class LiquidBackground : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    /// Drives the animation; without it the liquid does not move.
    Q_PROPERTY(tidewatch::WallClock* time READ time WRITE setTime NOTIFY changed FINAL)
    /// Strength of the colours, from 0 to 1.
    Q_PROPERTY(double intensity READ intensity WRITE setIntensity NOTIFY changed FINAL)
    /// In points of the unscaled drawing.
    Q_PROPERTY(double cornerRadius READ cornerRadius WRITE setCornerRadius NOTIFY changed FINAL)
    /// Pixels to a point of the unscaled drawing.
    Q_PROPERTY(double unit READ unit WRITE setUnit NOTIFY changed FINAL)
    Q_PROPERTY(bool translucent READ translucent WRITE setTranslucent NOTIFY changed FINAL)
    /// The factor by which it is painted smaller than shown.
    Q_PROPERTY(double reduction READ reduction WRITE setReduction NOTIFY changed FINAL)
    /// Repaints every n-th display frame; 1 or more.
    Q_PROPERTY(int everyFrames READ everyFrames WRITE setEveryFrames NOTIFY changed FINAL)
    Q_PROPERTY(bool running READ running WRITE setRunning NOTIFY changed FINAL)

public:
    explicit LiquidBackground(QQuickItem* parent = nullptr);
    ~LiquidBackground() override;

    [[nodiscard]] WallClock* time() const { return time_; }
    void setTime(WallClock* time);
    [[nodiscard]] double intensity() const { return intensity_; }
    void setIntensity(double intensity);
    [[nodiscard]] double cornerRadius() const { return cornerRadius_; }
    void setCornerRadius(double radius);
    [[nodiscard]] double unit() const { return unit_; }
    void setUnit(double unit);
    [[nodiscard]] bool translucent() const { return ground_ == Ground::translucent; }
    void setTranslucent(bool translucent);
    [[nodiscard]] double reduction() const { return reduction_; }
    void setReduction(double reduction);
    [[nodiscard]] int everyFrames() const { return ticker_.every(); }
    void setEveryFrames(int frames);
    [[nodiscard]] bool running() const { return running_; }
    void setRunning(bool running);

    /// Whether it is currently animating.
    [[nodiscard]] bool isMoving() const { return ticker_.state() == QAbstractAnimation::Running; }

    void paint(QPainter* painter) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void changed();

protected:
    void geometryChange(const QRectF& to, const QRectF& from) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    template <class Value>
    void change(Value& value, Value to);
    void watch(QQuickWindow* window);
    void updateMoving();
    [[nodiscard]] QSize paintedSize() const;

    QPointer<WallClock> time_;
    double intensity_ = 1;
    double cornerRadius_ = 0;
    double unit_ = 1;
    Ground ground_ = Ground::translucent;
    double reduction_ = 3;
    bool running_ = true;
    QPointer<QQuickWindow> window_;
    std::optional<LiquidPainter> painter_;
    FrameTicker ticker_;
};

}  // namespace tidewatch
