#include "claude/views/claude_card_presenter.h"

#include <algorithm>
#include <chrono>

#include "claude/views/claude_texts.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {
namespace {

constexpr std::chrono::seconds sessionLength(18000);

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
    title_ = "CLAUDE · " + text(snap.plan).toUpper();
    cost_ = "~" + text(snap.month.displayCost()) + " API";
    updateSession(snap, now);
    updateWeek(snap, now);
    todayConversations_ = QString::number(snap.today.requests) + " convs";
    todayTokens_ = "· " + text(fmtK(snap.today.outputTokens)) + " tok out";
    Q_EMIT figuresChanged();
}

void ClaudeCardPresenter::updateSession(const ClaudeSnapshot& snap, Instant now) {
    if (!snap.windowStarted) {
        sessionFraction_ = 0;
        sessionEnd_ = "ventana fresca · sin actividad reciente";
        sessionReset_ = "· nueva sesión disponible";
    } else {
        const auto end = *snap.windowStarted + sessionLength;
        const std::chrono::duration<double> elapsed = now - *snap.windowStarted;
        sessionFraction_ = std::clamp(elapsed / sessionLength, 0.0, 1.0);
        sessionEnd_ = "termina " + endTimeLabel(end, *clock_.timeZone());
        sessionReset_ = "· reinicia en " + remainingTime(end - now);
    }
    sessionPercent_ = wholePercent(sessionFraction_);
    sessionColor_ = limitColor(sessionFraction_);
}

void ClaudeCardPresenter::updateWeek(const ClaudeSnapshot& snap, Instant now) {
    const auto output = snap.week.outputTokens;
    weekFraction_ = std::min(static_cast<double>(output) / static_cast<double>(limitWeeklyTokens), 1.0);
    weekFigures_ = text(fmtK(output)) + " / " + text(fmtK(limitWeeklyTokens));
    weekPercent_ = "(" + wholePercent(weekFraction_) + ")";
    weekColor_ = limitColor(weekFraction_);
    weekReset_ = nextMondayLabel(now);
}

}  // namespace tidewatch
