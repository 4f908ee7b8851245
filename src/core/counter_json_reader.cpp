#include <simdjson.h>

#include <cmath>
#include <string_view>
#include <utility>

#include "core/counter_json.h"
#include "core/utf8.h"

namespace tidewatch {
namespace {

// On-demand parsing: a DOM would take more memory and time than everything else.
namespace json = simdjson::ondemand;

std::optional<Seconds> counterIn(json::value value) {
    std::int64_t integer = 0;
    if (value.get_int64().get(integer) == simdjson::SUCCESS) {
        const bool isCounter = integer >= -maxCounter && integer <= maxCounter;
        return isCounter ? std::optional(Seconds(integer)) : std::nullopt;
    }
    // An integer of more than 64 bits would be rounded.
    bool isInteger = true;
    if (value.is_integer().get(isInteger) != simdjson::SUCCESS || isInteger) return std::nullopt;
    double real = 0;
    if (value.get_double().get(real) != simdjson::SUCCESS) return std::nullopt;
    if (std::trunc(real) != real || std::abs(real) > double{maxCounter}) return std::nullopt;
    return Seconds(static_cast<std::int64_t>(real));
}

class Reader final {
public:
    /// `text` is followed by simdjson's padding.
    Reader(std::string_view text, CounterRecord& record) : text_(text), record_(record) {}

    bool read() {
        json::parser parser;
        json::document document;
        json::object top;
        return parser.iterate(text_, text_.size() + simdjson::SIMDJSON_PADDING).get(document) ==
                   simdjson::SUCCESS &&
               document.get_object().get(top) == simdjson::SUCCESS && readObject(top, 0) &&
               document.current_location().error() == simdjson::OUT_OF_BOUNDS;
    }

private:
    bool readObject(json::object object, std::size_t level) {
        for (auto member : object) {
            json::field field;
            if (std::move(member).get(field) != simdjson::SUCCESS || !readMember(field, level)) return false;
        }
        return true;
    }

    bool readMember(json::field& field, std::size_t level) {
        const auto key = keyOf(field);
        if (!key) return false;
        if (level + 1 == record_.depth()) {
            const auto counter = counterIn(field.value());
            if (counter) record_.appendLeaf(*key, *counter);
            return counter.has_value();
        }
        record_.appendBranch(level, *key);
        json::object child;
        return field.value().get_object().get(child) == simdjson::SUCCESS && readObject(child, level + 1);
    }

    // Nearly all keys are without escapes; only others have to be copied.
    std::optional<std::string_view> keyOf(json::field& field) const {
        const auto begin = static_cast<std::size_t>(field.key().raw() - text_.data());
        const auto standing = text_.substr(begin, text_.find('"', begin) - begin);
        if (standing.find('\\') == std::string_view::npos) return standing;
        std::string_view meant;
        return field.unescaped_key().get(meant) == simdjson::SUCCESS ? std::optional(meant) : std::nullopt;
    }

    std::string_view text_;
    CounterRecord& record_;
};

}  // namespace

std::optional<CounterRecord> parseCounters(std::string text, std::size_t depth) {
    text.reserve(text.size() + simdjson::SIMDJSON_PADDING);
    std::string_view content = text;
    if (content.starts_with(byteOrderMark)) content.remove_prefix(byteOrderMark.size());
    CounterRecord record(depth);
    if (!Reader(content, record).read()) return std::nullopt;
    record.finishLoading();
    return record;
}

}  // namespace tidewatch
