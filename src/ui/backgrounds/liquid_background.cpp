#include "ui/backgrounds/liquid_background.h"

#include <QEvent>
#include <QPainter>
#include <algorithm>

#include "ui/backgrounds/pixel_picture.h"

namespace tidewatch {
namespace {

/// In pixels: below the minimum the orbs lose their shape, above the maximum nothing is gained.
constexpr double minWidth = 48;
constexpr double maxWidth = 160;

}  // namespace

LiquidBackground::LiquidBackground(QQuickItem* parent)
    : QQuickPaintedItem(parent), ticker_([this] { update(); }) {
    watch(window());
}

LiquidBackground::~LiquidBackground() = default;

template <class Value>
void LiquidBackground::change(Value& value, Value to) {
    if (value == to) return;
    value = to;
    update();
    Q_EMIT changed();
}

void LiquidBackground::setTime(WallClock* time) {
    if (time == time_) return;
    time_ = time;
    update();
    Q_EMIT changed();
}

void LiquidBackground::setIntensity(double intensity) {
    change(intensity_, intensity);
}

void LiquidBackground::setCornerRadius(double radius) {
    change(cornerRadius_, radius);
}

void LiquidBackground::setUnit(double unit) {
    change(unit_, unit);
}

void LiquidBackground::setTranslucent(bool translucent) {
    change(ground_, translucent ? Ground::translucent : Ground::opaque);
}

void LiquidBackground::setReduction(double reduction) {
    change(reduction_, std::max(1.0, reduction));
}

void LiquidBackground::setEveryFrames(int frames) {
    if (frames == everyFrames() || frames < 1) return;
    ticker_.setEvery(frames);
    Q_EMIT changed();
}

void LiquidBackground::setRunning(bool running) {
    change(running_, running);
    updateMoving();
}

QSize LiquidBackground::paintedSize() const {
    const double target = std::clamp(width() / reduction_, std::min(minWidth, width()), maxWidth);
    const double scale = target / width();
    return {std::max(1, qRound(target)), std::max(1, qRound(height() * scale))};
}

void LiquidBackground::paint(QPainter* painter) {
    const LiquidSetting setting{paintedSize(), size() / unit_, intensity_, ground_};
    if (!painter_ || painter_->setting() != setting) painter_.emplace(setting);
    const double seconds = time_ ? time_->secondsSinceReferenceDate() : 0;
    paintLiquid(*painter, painter_->paint(liquidAngles(seconds)),
                {contentsBoundingRect().size(), cornerRadius_ * unit_, unit_, ground_});
}

void LiquidBackground::geometryChange(const QRectF& to, const QRectF& from) {
    QQuickPaintedItem::geometryChange(to, from);
    setPictureSize(*this);
}

void LiquidBackground::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemSceneChange) watch(data.window);
    QQuickPaintedItem::itemChange(change, data);
    if (change == ItemSceneChange || change == ItemVisibleHasChanged) updateMoving();
}

void LiquidBackground::watch(QQuickWindow* window) {
    if (window_) window_->removeEventFilter(this);
    window_ = window;
    if (window_) window_->installEventFilter(this);
}

bool LiquidBackground::eventFilter(QObject* watched, QEvent* event) {
    // The window updates its exposure from this very event, so query it afterwards.
    if (event->type() == QEvent::Expose || event->type() == QEvent::Hide) {
        QMetaObject::invokeMethod(this, &LiquidBackground::updateMoving, Qt::QueuedConnection);
    }
    return QQuickPaintedItem::eventFilter(watched, event);
}

void LiquidBackground::updateMoving() {
    const bool moves = running_ && isVisible() && window_ && window_->isExposed();
    if (moves == isMoving()) return;
    if (moves) {
        ticker_.start();
    } else {
        ticker_.stop();
    }
}

}  // namespace tidewatch
