#include "claude/claude_month_record.h"

#include <fmt/format.h>
#include <simdjson.h>

#include <array>
#include <cmath>
#include <string_view>
#include <utility>
#include <variant>

#include "core/json_document.h"
#include "core/json_writer.h"
#include "core/utf8.h"

namespace tidewatch {
namespace {

namespace json = simdjson::dom;

using MonthField = std::variant<std::string ClaudeMonthRecord::*, std::int64_t ClaudeMonthRecord::*,
                                double ClaudeMonthRecord::*>;

struct MonthKey {
    std::string_view name;
    MonthField field;
};

constexpr std::array monthKeys{
    MonthKey{"month", &ClaudeMonthRecord::month},
    MonthKey{"activeWindows", &ClaudeMonthRecord::activeWindows},
    MonthKey{"possibleWindows", &ClaudeMonthRecord::possibleWindows},
    MonthKey{"heavyWindows", &ClaudeMonthRecord::heavyWindows},
    MonthKey{"conversations", &ClaudeMonthRecord::conversations},
    MonthKey{"outputTokensK", &ClaudeMonthRecord::outputTokensK},
    MonthKey{"subscriptionUSD", &ClaudeMonthRecord::subscriptionUsd},
};

// Each returns whether the value has the field's type.
struct ReadMonthField {
    ClaudeMonthRecord& record;
    json::element value;

    [[nodiscard]] bool operator()(std::string ClaudeMonthRecord::*field) const {
        std::string_view text;
        if (value.get(text) != simdjson::SUCCESS) return false;
        record.*field = text;
        return true;
    }
    [[nodiscard]] bool operator()(std::int64_t ClaudeMonthRecord::*field) const {
        if (value.get(record.*field) == simdjson::SUCCESS) return true;
        constexpr double exactUpTo = 0x1p53;
        double real = 0;
        if (value.get(real) != simdjson::SUCCESS || std::abs(real) > exactUpTo || real != std::floor(real)) {
            return false;
        }
        record.*field = static_cast<std::int64_t>(real);
        return true;
    }
    [[nodiscard]] bool operator()(double ClaudeMonthRecord::*field) const {
        return value.get(record.*field) == simdjson::SUCCESS;
    }
};

struct WriteMonthField {
    const ClaudeMonthRecord& record;
    std::string& out;

    void operator()(std::string ClaudeMonthRecord::*field) const {
        out += '"';
        appendJsonEscaped(out, ValidUtf8(record.*field).text());
        out += '"';
    }
    void operator()(std::int64_t ClaudeMonthRecord::*field) const { out += fmt::format("{}", record.*field); }
    void operator()(double ClaudeMonthRecord::*field) const {
        // An integer without a fraction.
        const auto value = record.*field;
        out += value == std::floor(value) && std::abs(value) < 1e15 ? fmt::format("{:.0f}", value)
                                                                    : fmt::format("{}", value);
    }
};

std::optional<ClaudeMonthRecord> readMonth(const json::element& row) {
    json::object members;
    if (row.get(members) != simdjson::SUCCESS) return std::nullopt;
    ClaudeMonthRecord record;
    for (const auto& [name, field] : monthKeys) {
        std::optional<json::element> last;
        for (const auto& [key, value] : members) {
            if (key == name) last = value;
        }
        if (!last || !std::visit(ReadMonthField{record, *last}, field)) return std::nullopt;
    }
    return record;
}

}  // namespace

double ClaudeMonthRecord::efficiency() const {
    if (possibleWindows < 1) return 0;
    return static_cast<double>(activeWindows) / static_cast<double>(possibleWindows);
}

std::optional<std::vector<ClaudeMonthRecord>> parseMonthHistory(std::string text) {
    const auto document = JsonDocument::parse(std::move(text));
    json::array rows;
    if (!document || document->root().get(rows) != simdjson::SUCCESS) return std::nullopt;
    std::vector<ClaudeMonthRecord> months;
    for (const auto& row : rows) {
        auto month = readMonth(row);
        if (!month) return std::nullopt;
        months.push_back(*std::move(month));
    }
    return months;
}

std::optional<std::string> serializeMonthHistory(const std::vector<ClaudeMonthRecord>& months) {
    std::string out = "[";
    for (const auto& record : months) {
        if (!std::isfinite(record.subscriptionUsd)) return std::nullopt;
        if (out.size() > 1) out += ',';
        char separator = '{';
        for (const auto& [name, field] : monthKeys) {
            out += fmt::format("{}\"{}\":", std::exchange(separator, ','), name);
            std::visit(WriteMonthField{record, out}, field);
        }
        out += '}';
    }
    return out + "]";
}

}  // namespace tidewatch
