#include "claude/views/claude_card_presenter.h"

#include <algorithm>
#include <chrono>

#include "claude/views/claude_texts.h"
#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

constexpr std::chrono::seconds sessionLength(18000);

ClaudeLimit weekOf(const ClaudeSnapshot& snap, Instant now) {
    constexpr auto limit = ClaudeCardPresenter::limitWeeklyTokens;
    const auto output = snap.week.outputTokens;
    ClaudeLimit week;
    week.label = "Semana";
    week.fraction = std::min(static_cast<double>(output) / static_cast<double>(limit), 1.0);
    week.value = text(fmtK(output)) + " / " + text(fmtK(limit)) + " (" + wholePercent(week.fraction) + ")";
    week.color = limitColor(week.fraction);
    week.reset = nextMondayLabel(now);
    return week;
}

ClaudeFigure figureOf(const ClaudeUsagePeriod& today) {
    ClaudeFigure figure;
    figure.id = "today";
    figure.label = "Hoy";
    figure.value =
        QString::number(today.requests) + " convs · " + text(fmtK(today.outputTokens)) + " tok out";
    figure.accessibleText = figure.label + ": " + figure.value;
    return figure;
}

}  // namespace

ClaudeCardPresenter::ClaudeCardPresenter(const platform::Clock& clock, platform::MainLoop& mainLoop,
                                         ClaudeUsageMonitor& monitor)
    : clock_(clock),
      mainLoop_(mainLoop),
      monitor_(monitor),
      monitorChanged_(monitor.changed.connect([this](ClaudeUsageMonitor::Field) { updateIfVisible(); })) {}

void ClaudeCardPresenter::visibilityChanged() {
    timer_.reset();
    if (!isVisible()) return;
    timer_ = mainLoop_.repeat(std::chrono::seconds(1), platform::TimerMode::common, [this] { update(); });
    monitor_.refresh();
}

void ClaudeCardPresenter::update() {
    const auto& snap = monitor_.snap();
    const auto now = clock_.now();
    const Figures figures{
        .title = "CLAUDE · " + text(snap.plan).toUpper(),
        .cost = "~" + text(snap.month.displayCost()) + " API",
        .session = sessionOf(snap, now),
        .week = weekOf(snap, now),
        .today = figureOf(snap.today),
    };
    change(this, figures_, figures, &ClaudeCardPresenter::figuresChanged);
}

ClaudeLimit ClaudeCardPresenter::sessionOf(const ClaudeSnapshot& snap, Instant now) const {
    ClaudeLimit session;
    session.label = "Límite 5 h";
    QString reset;
    if (!snap.windowStarted) {
        session.remark = "ventana fresca · sin actividad reciente";
        reset = "nueva sesión disponible";
    } else {
        const auto end = *snap.windowStarted + sessionLength;
        const std::chrono::duration<double> elapsed = now - *snap.windowStarted;
        session.fraction = std::clamp(elapsed / sessionLength, 0.0, 1.0);
        session.remark = "termina " + endTimeLabel(end, *clock_.timeZone());
        reset = "reinicia en " + remainingTime(end - now);
    }
    session.reset = wholePercent(session.fraction) + " · " + reset;
    session.color = limitColor(session.fraction);
    return session;
}

}  // namespace tidewatch
