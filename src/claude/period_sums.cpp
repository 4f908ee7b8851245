#include "claude/period_sums.h"

namespace tidewatch {

void PeriodSums::add(const UsageRow& row) {
    tokens_.addChecked(row.tokens);
    requests_ += row.lines;
    cost_.add(row.cost);
    auto& model = byModel_[row.model];
    addChecked(model.output, row.tokens.output);
    model.isUsed = true;
}

ClaudeUsagePeriod PeriodSums::total(const ModelNames& models) const {
    ClaudeUsagePeriod period;
    period.inputTokens = tokens_.input;
    period.outputTokens = tokens_.output;
    period.cacheWriteTokens = tokens_.cacheWrite;
    period.cacheReadTokens = tokens_.cacheRead;
    period.estimatedUsd = cost_.dollars();
    period.requests = requests_;
    for (std::size_t id = 0; id < byModel_.size(); ++id) {
        if (!byModel_[id].isUsed) continue;
        period.byModel.emplace(models.nameOf(static_cast<std::uint32_t>(id)), byModel_[id].output);
    }
    return period;
}

}  // namespace tidewatch
