#include "analysis/goal_settings_json.h"

#include <simdjson.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <iterator>
#include <string_view>
#include <utility>
#include <variant>

#include "core/json_document.h"
#include "core/json_writer.h"

namespace tidewatch {
namespace {

namespace json = simdjson::dom;

using Field = std::variant<double GoalSettings::*, bool GoalSettings::*>;

struct GoalField {
    std::string_view key;
    Field field;
};

// In the order of the file.
constexpr std::array goalFields{
    GoalField{"dailyHours", &GoalSettings::dailyHours},
    GoalField{"dailyProductivity", &GoalSettings::dailyProductivity},
    GoalField{"monthlyHours", &GoalSettings::monthlyHours},
    GoalField{"notificationsEnabled", &GoalSettings::notificationsEnabled},
    GoalField{"weeklyHours", &GoalSettings::weeklyHours},
};

// Larger values are meaningless and would complicate texts and sums.
constexpr double maxGoal = 1e6;

// Each returns whether the value has the field's type and range.
struct Read {
    GoalSettings& settings;
    json::element value;

    [[nodiscard]] bool operator()(double GoalSettings::*field) const {
        return value.get_double().get(settings.*field) == simdjson::SUCCESS &&
               std::abs(settings.*field) <= maxGoal;
    }
    [[nodiscard]] bool operator()(bool GoalSettings::*field) const {
        return value.get_bool().get(settings.*field) == simdjson::SUCCESS;
    }
};

struct Write {
    const GoalSettings& settings;
    JsonWriter& writer;

    void operator()(double GoalSettings::*field) const { writer.real(settings.*field); }
    void operator()(bool GoalSettings::*field) const { writer.boolean(settings.*field); }
};

struct CanBeWritten {
    const GoalSettings& settings;

    [[nodiscard]] bool operator()(double GoalSettings::*field) const {
        return std::isfinite(settings.*field);
    }
    [[nodiscard]] bool operator()(bool GoalSettings::*) const { return true; }
};

}  // namespace

std::optional<GoalSettings> parseGoalSettings(std::string text) {
    const auto document = JsonDocument::parse(std::move(text));
    json::object object;
    if (!document || document->root().get_object().get(object) != simdjson::SUCCESS) return std::nullopt;
    GoalSettings settings;
    std::array<bool, goalFields.size()> seen{};
    for (const auto& [key, value] : object) {
        const auto* row = std::ranges::find(goalFields, key, &GoalField::key);
        if (row == goalFields.end()) continue;
        if (!std::visit(Read{settings, value}, row->field)) return std::nullopt;
        seen[static_cast<std::size_t>(std::distance(goalFields.begin(), row))] = true;
    }
    if (!std::ranges::all_of(seen, std::identity())) return std::nullopt;
    return settings;
}

std::optional<std::string> serializeGoalSettings(const GoalSettings& settings) {
    const auto canBeWritten = [&](const GoalField& row) {
        return std::visit(CanBeWritten{settings}, row.field);
    };
    if (!std::ranges::all_of(goalFields, canBeWritten)) return std::nullopt;
    JsonWriter writer;
    writer.beginObject();
    for (const auto& row : goalFields) {
        writer.key(row.key);
        std::visit(Write{settings, writer}, row.field);
    }
    writer.endObject();
    return writer.take();
}

}  // namespace tidewatch
