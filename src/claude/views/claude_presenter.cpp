#include "claude/views/claude_presenter.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "base/parse_real.h"
#include "claude/local_months.h"
#include "claude/views/claude_texts.h"
#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

constexpr std::size_t maxRows = 6;

ClaudeFigure figure(const QString& label, const QString& value) {
    return {.id = label,
            .label = label,
            .value = value,
            .accessibleText = QString(label).replace('\n', ' ') + ": " + value};
}

std::vector<ClaudeBar> modelRows(const TokensByModel& byModel) {
    std::vector<std::pair<std::string, std::int64_t>> models(byModel.begin(), byModel.end());
    std::ranges::stable_sort(models, std::ranges::greater(), &decltype(models)::value_type::second);
    double total = 0;
    for (const auto& [model, tokens] : models) total += static_cast<double>(tokens);
    total = std::max(total, 1.0);
    models.resize(std::min(models.size(), maxRows));
    std::vector<ClaudeBar> rows;
    for (const auto& [model, tokens] : models) {
        ClaudeBar row{.id = text(model),
                      .label = nameText(shortModel(model)),
                      .mark = {},
                      .value = text(fmtK(tokens)) + " tok out",
                      .valueColor = {},
                      .details = {},
                      .fraction = static_cast<double>(tokens) / total,
                      .color = modelColor(model),
                      .accessibleText = {}};
        row.accessibleText = row.label + ": " + row.value;
        rows.push_back(row);
    }
    return rows;
}

ClaudeBar monthRow(const ClaudeMonthRecord& record, std::string_view currentMonth) {
    const auto efficiency = record.efficiency();
    ClaudeBar row{
        .id = text(record.month),
        .label = nameText(monthLabel(record.month).toStdString()),
        .mark = record.month == currentMonth ? "· actual" : "",
        .value = wholeDollars(efficiency * record.subscriptionUsd) + " / " +
                 wholeDollars(record.subscriptionUsd) + " (" + wholePercent(efficiency) + ")",
        .valueColor = efficiencyColor(efficiency),
        .details = text(fmt::format("{} sesiones · {} convs", record.activeWindows, record.conversations)),
        .fraction = std::clamp(efficiency, 0.0, 1.0),
        .color = efficiencyColor(efficiency),
        .accessibleText = {}};
    row.accessibleText =
        row.label + (row.mark.isEmpty() ? "" : " " + row.mark) + ": " + row.value + ", " + row.details;
    return row;
}

}  // namespace

ClaudePresenter::ClaudePresenter(const Sources& sources)
    : sources_(sources),
      monitorChanged_(
          sources.monitor.changed.connect([this](ClaudeUsageMonitor::Field) { updateIfVisible(); })) {}

void ClaudePresenter::visibilityChanged() {
    if (!isVisible()) {
        timer_.reset();
        setEditing(false);
        return;
    }
    const auto budget = sources_.settings.monthlyBudgetUsd();
    setBudgetText(budget > 0 ? text(fmt::format("{:.0f}", budget)) : QString());
    timer_ = sources_.mainLoop.repeat(std::chrono::seconds(1), platform::TimerMode::common,
                                      [this] { updateTime(); });
    sources_.monitor.refresh();
}

const ClaudeUsagePeriod& ClaudePresenter::period() const {
    const auto& snap = sources_.monitor.snap();
    if (range_ == ClaudeRange::today) return snap.today;
    return range_ == ClaudeRange::week ? snap.week : snap.month;
}

void ClaudePresenter::update() {
    const auto& snap = sources_.monitor.snap();
    const bool isRead = snap.scannedAt != distantPast;
    hasNoLogs_ = !isRead && sources_.monitor.hasScanned();
    note_ = isRead && snap.month.requests == 0 ? "Sin actividad de Claude Code este mes." : "";
    updateTime();
    updateValue(snap);
    updatePeriod(period());
    updateMonths();
    Q_EMIT figuresChanged();
    change(this, isScanning_, sources_.monitor.isScanning(), &ClaudePresenter::scanningChanged);
}

void ClaudePresenter::updateTime() {
    const auto scannedAt = sources_.monitor.snap().scannedAt;
    const auto updated =
        scannedAt == distantPast ? QString() : "actualizado " + relativeTime(scannedAt, sources_.clock.now());
    change(this, updated_, updated, &ClaudePresenter::updatedChanged);
}

void ClaudePresenter::updateValue(const ClaudeSnapshot& snap) {
    const auto price = sources_.settings.subscriptionUsd();
    const auto& roi = snap.roi;
    extracted_ = wholeDollars(roi.extractedUsd(price));
    subscription_ = wholeDollars(price);
    efficiencyFraction_ = roi.efficiency();
    efficiency_ = wholePercent(efficiencyFraction_);
    valueColor_ = efficiencyColor(efficiencyFraction_);
    usedWindows_ = QString::number(roi.activeWindows) + " ventanas usadas";
    possibleWindows_ = "de " + QString::number(roi.possibleWindows) + " posibles este mes";
    sessions_.setRows({figure("SESIONES\nACTIVAS", QString::number(roi.activeWindows)),
                       figure("SESIONES\nINTENSAS", QString::number(roi.heavyWindows)),
                       figure("COSTO\nPOR SESIÓN", text(fmt::format("${:.2f}", roi.costPerWindow(price))))});
}

void ClaudePresenter::updatePeriod(const ClaudeUsagePeriod& period) {
    tokens_.setRows({figure("Input", text(fmtK(period.inputTokens))),
                     figure("Output", text(fmtK(period.outputTokens))),
                     figure("Cache write", text(fmtK(period.cacheWriteTokens))),
                     figure("Cache read", text(fmtK(period.cacheReadTokens)))});
    conversations_ = QString::number(period.requests) + " conversaciones";
    total_ = text(fmtK(period.totalTokens()));
    cost_ = text(period.displayCost());
    models_.setRows(modelRows(period.byModel));
}

void ClaudePresenter::updateMonths() {
    LocalMonths months(sources_.clock.timeZone());
    const auto current =
        toMonthKey(months.monthOf(std::chrono::floor<std::chrono::seconds>(sources_.clock.now())));
    const auto& history = sources_.monitor.history();
    std::vector<ClaudeBar> rows;
    for (auto i = history.size() - std::min(history.size(), maxRows); i < history.size(); ++i) {
        rows.push_back(monthRow(history[i], current));
    }
    months_.setRows(rows);
}

void ClaudePresenter::selectRange(int index) {
    if (index < 0 || index >= ranges().size()) return;
    range_ = static_cast<ClaudeRange>(index);
    updateIfVisible();
}

void ClaudePresenter::setBudgetText(const QString& text) {
    change(this, budgetText_, text, &ClaudePresenter::budgetTextChanged);
}

void ClaudePresenter::setEditing(bool editing) {
    change(this, editingBudget_, editing, &ClaudePresenter::editingChanged);
}

void ClaudePresenter::editBudget() {
    setBudgetText(text(fmt::format("{:.0f}", sources_.settings.subscriptionUsd())));
    setEditing(true);
}

void ClaudePresenter::saveBudget() {
    const auto usd = parseReal(budgetText_.toStdString());
    if (usd && *usd > 0) sources_.settings.setSubscriptionUsd(*usd);
    setEditing(false);
    updateIfVisible();
}

void ClaudePresenter::cancelBudget() {
    setEditing(false);
}

}  // namespace tidewatch
