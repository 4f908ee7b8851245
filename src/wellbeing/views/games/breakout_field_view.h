#pragma once

#include <qqmlregistration.h>
#include <QPointer>
#include <cstdint>

#include "wellbeing/views/games/breakout_presenter.h"
#include "wellbeing/views/games/game_field.h"

namespace tidewatch {

/// The brick game's board: bricks, paddle and ball. While the pointer is pressed
/// the paddle follows it.
class BreakoutFieldView : public tidewatch::GameField {
    Q_OBJECT
    QML_NAMED_ELEMENT(BreakoutField)
    Q_PROPERTY(tidewatch::BreakoutPresenter* presenter READ presenter WRITE setPresenter NOTIFY
                   presenterChanged FINAL)
    /// Of the ball, where the theme has no colours.
    Q_PROPERTY(QColor ballColor READ ballColor WRITE setBallColor NOTIFY ballColorChanged FINAL)

public:
    explicit BreakoutFieldView(QQuickItem* parent = nullptr);

    [[nodiscard]] BreakoutPresenter* presenter() const { return presenter_; }
    void setPresenter(BreakoutPresenter* presenter);
    [[nodiscard]] QColor ballColor() const { return ballColor_; }
    void setBallColor(const QColor& color);

Q_SIGNALS:
    void presenterChanged();
    void ballColorChanged();

protected:
    void paintField(QPainter& painter, const QRectF& dirty) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    /// What is on the screen.
    struct Shown {
        QRectF ball;
        QRectF paddle;
        std::uint32_t livingBricks = 0;  ///< a bit a brick
    };

    [[nodiscard]] Shown shownOf(const BreakoutModel& model) const;
    [[nodiscard]] QColor brickColor(const breakout::Brick& brick) const;
    void sync();
    void dragTo(double x);

    QPointer<BreakoutPresenter> presenter_;
    QColor ballColor_ = Qt::white;
    Shown shown_;
};

}  // namespace tidewatch
