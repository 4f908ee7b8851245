#include "shell/views/clock_presenter.h"

#include <algorithm>
#include <utility>

#include "base/duration_format.h"
#include "ui/style/fonts.h"
#include "ui/style/qt_color.h"
#include "ui/symbols/stars.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {
namespace {

constexpr double filledStarOpacity = 0.7;
constexpr double emptyStarOpacity = 0.22;

QString clockText(Seconds duration) {
    return text(hms(duration));
}

}  // namespace

ClockPresenter::ClockPresenter(TimerEngine& engine, ThemeController& theme, const platform::Clock& clock,
                               StarsToday starsToday)
    : engine_(engine),
      theme_(theme),
      starsToday_(std::move(starsToday)),
      wallClock_(clock),
      engineChanged_(engine.changed.connect([this] { syncEngine(); })),
      themeChanged_(theme.changed.connect([this] { syncTheme(); })) {
    syncEngine();
    syncTheme();
}

PanelBackgroundItem::Kind ClockPresenter::background() const {
    return PanelBackgroundItem::toKind(active().background);
}

QString ClockPresenter::label() const {
    return text(active().label.value_or("")).toUpper();
}

QFont ClockPresenter::labelFont() const {
    auto font = toQFont(active().labelFont);
    font.setLetterSpacing(QFont::AbsoluteSpacing, active().labelTracking);
    return font;
}

QFont ClockPresenter::digitFont() const {
    return toQFont(active().digitFont);
}

QFont ClockPresenter::sessionFont() const {
    return toQFont(active().dailyTotalFont);
}

QColor ClockPresenter::primaryText() const {
    return toQColor(active().primaryText);
}

QColor ClockPresenter::secondaryText() const {
    return toQColor(active().secondaryText);
}

QColor ClockPresenter::textShade() const {
    // White letters on moving pastels need something to stand out from.
    return backgroundMoves() ? toQColor(Color::blackAt(0.36)) : QColor(Qt::transparent);
}

void ClockPresenter::setTranslucent(bool translucent) {
    change(translucent_, translucent, &ClockPresenter::translucentChanged);
}

void ClockPresenter::setOnScreen(bool onScreen) {
    change(onScreen_, onScreen, &ClockPresenter::onScreenChanged);
}

template <class Value>
void ClockPresenter::change(Value& value, const Value& to, void (ClockPresenter::*changed)()) {
    if (value == to) return;
    value = to;
    Q_EMIT(this->*changed)();
}

void ClockPresenter::syncEngine() {
    change(digits_, clockText(engine_.todaySeconds()), &ClockPresenter::digitsChanged);
    change(sessionLine_, "sesión · " + clockText(engine_.liveSeconds()), &ClockPresenter::sessionLineChanged);
    updateDot();
    updateStars();
    updateAccessibleText();
}

void ClockPresenter::syncTheme() {
    updateDot();
    updateStars();
    Q_EMIT themeChanged();
}

void ClockPresenter::updateDot() {
    const bool isActive = engine_.status() == TimerEngine::Status::active;
    change(dotColor_, toQColor(isActive ? active().accentActive : active().accentIdle),
           &ClockPresenter::dotColorChanged);
}

void ClockPresenter::updateStars() {
    filledStars_ = std::clamp(starsToday_(), 0, starCount);
    const auto names = starSymbols(filledStars_);
    QList<QColor> colors;
    for (int i = 0; i < starCount; ++i) {
        const bool filled = i < filledStars_;
        colors.append(toQColor(filled ? active().accentActive.at(filledStarOpacity)
                                      : active().secondaryText.at(emptyStarOpacity)));
    }
    if (names == stars_ && colors == starColors_) return;
    stars_ = names;
    starColors_ = colors;
    Q_EMIT starsChanged();
}

void ClockPresenter::updateAccessibleText() {
    const bool isActive = engine_.status() == TimerEngine::Status::active;
    change(accessibleText_,
           QString("Hoy %1, sesión %2, %3, %4")
               .arg(clockText(engine_.todaySeconds()), clockText(engine_.liveSeconds()),
                    isActive ? "activo" : "inactivo", starsText(filledStars_)),
           &ClockPresenter::accessibleTextChanged);
}

}  // namespace tidewatch
