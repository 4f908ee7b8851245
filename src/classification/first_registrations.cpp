#include "classification/first_registrations.h"

#include <simdjson.h>

#include <optional>
#include <string_view>
#include <utility>

#include "core/json_document.h"
#include "core/json_writer.h"

namespace tidewatch {
namespace {

namespace json = simdjson::dom;

using Registrations = std::map<AppId, FirstRegistrations::Words>;

std::string written(const Registrations& registrations) {
    JsonWriter writer;
    writer.beginObject();
    for (const auto& [app, words] : registrations) {
        writer.key(app.text()).beginArray();
        for (const auto& word : words) writer.string(word);
        writer.endArray();
    }
    writer.endObject();
    return writer.take();
}

std::optional<FirstRegistrations::Words> readWords(json::element value) {
    json::array array;
    if (value.get_array().get(array) != simdjson::SUCCESS) return std::nullopt;
    FirstRegistrations::Words words;
    for (const auto element : array) {
        std::string_view word;
        if (element.get_string().get(word) != simdjson::SUCCESS) return std::nullopt;
        words.emplace_back(word);
    }
    return words;
}

std::optional<Registrations> readRegistrations(std::string text) {
    const auto document = JsonDocument::parse(std::move(text));
    json::object object;
    if (!document || document->root().get_object().get(object) != simdjson::SUCCESS) return std::nullopt;
    Registrations registrations;
    for (const auto& [app, value] : object) {
        auto words = readWords(value);
        if (!words) return std::nullopt;
        registrations[AppId(std::string(app))] = std::move(*words);
    }
    return registrations;
}

}  // namespace

FirstRegistrations::FirstRegistrations(platform::FileSystem& files, platform::Log& log)
    : file_(files, log, "registered.json", "Tidewatch: failed to write registered.json: ") {
    if (auto registrations = file_.read(readRegistrations)) words_ = std::move(*registrations);
}

const FirstRegistrations::Words* FirstRegistrations::find(const AppId& app) const {
    const auto found = words_.find(app);
    return found == words_.end() ? nullptr : &found->second;
}

void FirstRegistrations::remember(const AppId& app, Words words) {
    words_[app] = std::move(words);
    changed_ = true;
}

void FirstRegistrations::flush() {
    if (std::exchange(changed_, false)) file_.write(written(words_));
}

}  // namespace tidewatch
