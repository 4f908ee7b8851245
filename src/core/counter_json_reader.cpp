#include <simdjson.h>

#include <cmath>
#include <string>
#include <utility>

#include "core/counter_json.h"
#include "core/json_document.h"

namespace tidewatch {
namespace {

namespace json = simdjson::dom;

std::optional<std::int64_t> wholeNumber(json::element value) {
    std::int64_t integer = 0;
    if (value.get_int64().get(integer) == simdjson::SUCCESS) return integer;
    double real = 0;
    if (value.get_double().get(real) != simdjson::SUCCESS) return std::nullopt;
    constexpr double limit = 0x1p63;
    if (std::trunc(real) != real || real < -limit || real >= limit) return std::nullopt;
    return static_cast<std::int64_t>(real);
}

bool readObject(json::object object, std::size_t level, CounterRecord& record) {
    for (const auto& [key, value] : object) {
        if (level + 1 == record.depth()) {
            const auto number = wholeNumber(value);
            if (!number) return false;
            record.appendLeaf(key, Seconds(*number));
        } else {
            record.appendBranch(level, key);
            json::object child;
            if (value.get_object().get(child) != simdjson::SUCCESS) return false;
            if (!readObject(child, level + 1, record)) return false;
        }
    }
    return true;
}

}  // namespace

std::optional<CounterRecord> readCounters(std::string text, std::size_t depth) {
    const auto document = JsonDocument::parse(std::move(text));
    json::object top;
    if (!document || document->root().get_object().get(top) != simdjson::SUCCESS) return std::nullopt;
    CounterRecord record(depth);
    if (!readObject(top, 0, record)) return std::nullopt;
    record.settle();
    return record;
}

}  // namespace tidewatch
