#include "claude/claude_usage_monitor.h"

#include <utility>

namespace tidewatch {
namespace {

constexpr std::chrono::seconds refreshFloor(60);

}  // namespace

ClaudeUsageMonitor::ClaudeUsageMonitor(const Dependencies& dependencies)
    : clock_(dependencies.clock),
      mainLoop_(dependencies.mainLoop),
      settings_(dependencies.settings),
      scanner_(dependencies.files, dependencies.clock),
      monthHistory_(dependencies.files, dependencies.log, dependencies.clock),
      queue_(dependencies.queues.makeQueue("claude.usage", platform::JobPriority::low)) {}

ClaudeUsageMonitor::~ClaudeUsageMonitor() {
    scanner_.cancel();
}

void ClaudeUsageMonitor::refresh() {
    if (clock_.now() - lastScan_ > refreshFloor) start();
}

void ClaudeUsageMonitor::forceRefresh() {
    lastScan_ = distantPast;
    start();
}

void ClaudeUsageMonitor::setMonthlyBudgetUsd(double usd) {
    settings_.setMonthlyBudgetUsd(usd);
    start();
}

void ClaudeUsageMonitor::start() {
    mainLoop_.post([this, alive = std::weak_ptr(alive_)] {
        if (!alive.expired()) rescan();
    });
}

void ClaudeUsageMonitor::rescan() {
    const auto subscriptionUsd = settings_.subscriptionUsd();
    if (running_++ == 0) changed.emit(Field::isScanning);
    queue_->run(
        [this] { return scanner_.scan(); },
        [this, subscriptionUsd](ClaudeSnapshot snapshot) { publish(std::move(snapshot), subscriptionUsd); });
}

void ClaudeUsageMonitor::publish(ClaudeSnapshot snapshot, double subscriptionUsd) {
    snapshot.monthlyBudgetUsd = settings_.monthlyBudgetUsd();
    snap_ = std::move(snapshot);
    lastScan_ = clock_.now();
    hasScanned_ = true;
    changed.emit(Field::snap);
    queue_->run([this, snap = snap_, subscriptionUsd] { return loadHistory(snap, subscriptionUsd); },
                [this](std::vector<ClaudeMonthRecord> history) { finish(std::move(history)); });
}

std::vector<ClaudeMonthRecord> ClaudeUsageMonitor::loadHistory(const ClaudeSnapshot& snapshot,
                                                               double subscriptionUsd) {
    const auto past = scanner_.scanPastMonths();
    if (!past) return {};
    return monthHistory_.update(*past, snapshot, subscriptionUsd);
}

void ClaudeUsageMonitor::finish(std::vector<ClaudeMonthRecord> history) {
    history_ = std::move(history);
    changed.emit(Field::history);
    if (--running_ == 0) changed.emit(Field::isScanning);
}

}  // namespace tidewatch
