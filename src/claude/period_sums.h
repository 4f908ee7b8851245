#pragma once

#include <cstdint>
#include <vector>

#include "claude/claude_snapshot.h"
#include "claude/dollar_sum.h"
#include "claude/model_names.h"
#include "claude/usage_rows.h"

namespace tidewatch {

/// Adds up the rows of one period. An overflow aborts the process.
class PeriodSums final {
public:
    /// For so many models.
    explicit PeriodSums(std::size_t models) : byModel_(models) {}

    void add(const UsageRow& row);

    [[nodiscard]] ClaudeUsagePeriod total(const ModelNames& models) const;

private:
    struct Model {
        std::int64_t output = 0;
        bool isUsed = false;
    };

    TokenCounts tokens_;
    std::int64_t requests_ = 0;
    DollarSum cost_;
    std::vector<Model> byModel_;
};

}  // namespace tidewatch
