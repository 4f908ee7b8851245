#include "wellbeing/views/games/breakout_field_view.h"

#include <QMouseEvent>
#include <QPainter>

#include "ui/style/qt_color.h"
#include "wellbeing/views/games/game_colors.h"

namespace tidewatch {
namespace {

constexpr double brickRadius = 2;
constexpr double paddleRadius = 3;

QRectF rectOf(const breakout::Brick& brick) {
    return {brick.rect.x, brick.rect.y, brick.rect.width, brick.rect.height};
}

static_assert(breakout::brickRows * breakout::brickColumns <= 32);

}  // namespace

BreakoutFieldView::BreakoutFieldView(QQuickItem* parent) : GameField(parent) {
    setLayoutSize({breakout::fieldWidth, breakout::fieldHeight});
    setAcceptedMouseButtons(Qt::LeftButton);
    setKeepMouseGrab(true);
}

void BreakoutFieldView::setPresenter(BreakoutPresenter* presenter) {
    if (presenter == presenter_) return;
    if (presenter_) presenter_->disconnect(this);
    presenter_ = presenter;
    if (presenter_) connect(presenter_, &BreakoutPresenter::boardChanged, this, &BreakoutFieldView::sync);
    sync();
    Q_EMIT presenterChanged();
}

void BreakoutFieldView::setBallColor(const QColor& color) {
    if (color == ballColor_) return;
    ballColor_ = color;
    update();
    Q_EMIT ballColorChanged();
}

BreakoutFieldView::Shown BreakoutFieldView::shownOf(const BreakoutModel& model) const {
    const auto& ball = model.ball();
    const double paddle = breakout::paddleWidth(model.level());
    Shown shown{
        .ball = inItem({ball.x - breakout::ballRadius, ball.y - breakout::ballRadius,
                        2 * breakout::ballRadius, 2 * breakout::ballRadius}),
        .paddle = inItem({model.paddleX() - paddle / 2, breakout::paddleTop, paddle, breakout::paddleHeight}),
    };
    for (const auto& brick : model.bricks()) {
        if (brick.alive) shown.livingBricks |= 1U << brick.id;
    }
    return shown;
}

void BreakoutFieldView::sync() {
    if (!presenter_) {
        shown_ = {};
        update();
        return;
    }
    const auto shown = shownOf(presenter_->model());
    if (shown.ball != shown_.ball) {
        repaint(shown_.ball);
        repaint(shown.ball);
    }
    if (shown.paddle != shown_.paddle) repaint(shown_.paddle | shown.paddle);
    if (const auto changed = shown.livingBricks ^ shown_.livingBricks; changed != 0) {
        for (const auto& brick : presenter_->model().bricks()) {
            if ((changed >> brick.id & 1U) != 0) repaint(inItem(rectOf(brick)));
        }
    }
    shown_ = shown;
}

QColor BreakoutFieldView::brickColor(const breakout::Brick& brick) const {
    return colorAt(brick.color, toQColor(brickColors.at(static_cast<std::size_t>(brick.color))));
}

void BreakoutFieldView::paintField(QPainter& painter, const QRectF& dirty) {
    if (!presenter_) return;
    const auto& model = presenter_->model();
    const auto fill = [&](const QRectF& rect, double radius, const QColor& color) {
        if (!rect.intersects(dirty)) return;
        painter.setBrush(color);
        painter.drawRoundedRect(rect, radius, radius);
    };
    for (const auto& brick : model.bricks()) {
        if (brick.alive) fill(onPixels(inItem(rectOf(brick))), brickRadius * unit(), brickColor(brick));
    }
    const auto shown = shownOf(model);
    fill(onPixels(shown.paddle), paddleRadius * unit(), plainColor());
    fill(shown.ball, shown.ball.width() / 2, colorAt(0, ballColor_));
}

void BreakoutFieldView::mousePressEvent(QMouseEvent* event) {
    dragTo(event->position().x());
}

void BreakoutFieldView::mouseMoveEvent(QMouseEvent* event) {
    dragTo(event->position().x());
}

void BreakoutFieldView::dragTo(double x) {
    if (presenter_) presenter_->setPaddle(x / unit());
}

}  // namespace tidewatch
