#include "projects/project_file.h"

#include <simdjson.h>

#include <string_view>
#include <utility>

#include "core/json_document.h"
#include "core/json_writer.h"

namespace tidewatch {
namespace {

namespace json = simdjson::dom;

constexpr std::string_view activeKey = "activeProjectID";
constexpr std::string_view projectsKey = "projects";
constexpr std::string_view archivedKey = "archived";
constexpr std::string_view colorKey = "colorHex";
constexpr std::string_view idKey = "id";
constexpr std::string_view nameKey = "name";

std::optional<std::string> readText(json::element object, std::string_view key) {
    std::string_view text;
    if (object.at_key(key).get_string().get(text) != simdjson::SUCCESS) return std::nullopt;
    return std::string(text);
}

std::optional<Uuid> readId(json::element object, std::string_view key) {
    const auto text = readText(object, key);
    return text ? Uuid::parse(*text) : std::nullopt;
}

std::optional<Project> readProject(json::element object) {
    const auto id = readId(object, idKey);
    const auto name = readText(object, nameKey);
    const auto color = readText(object, colorKey);
    bool archived = false;
    const auto archivedError = object.at_key(archivedKey).get_bool().get(archived);
    if (!id || !name || !color || archivedError != simdjson::SUCCESS) return std::nullopt;
    return Project{*id, *name, *color, archived};
}

bool hasValue(json::element object, std::string_view key) {
    json::element value;
    return object.at_key(key).get(value) == simdjson::SUCCESS && !value.is_null();
}

}  // namespace

std::string serializeProjects(const ProjectList& list) {
    JsonWriter writer;
    writer.beginObject();
    if (list.activeId) writer.key(activeKey).string(list.activeId->text());
    writer.key(projectsKey).beginArray();
    for (const auto& project : list.projects) {
        writer.beginObject();
        writer.key(archivedKey).boolean(project.archived);
        writer.key(colorKey).string(project.colorHex);
        writer.key(idKey).string(project.id.text());
        writer.key(nameKey).string(project.name);
        writer.endObject();
    }
    writer.endArray();
    writer.endObject();
    return writer.take();
}

std::optional<ProjectList> parseProjects(std::string text) {
    const auto document = JsonDocument::parse(std::move(text));
    json::array projects;
    if (!document || document->root().at_key(projectsKey).get_array().get(projects) != simdjson::SUCCESS) {
        return std::nullopt;
    }
    ProjectList list;
    for (const auto element : projects) {
        auto project = readProject(element);
        if (!project) return std::nullopt;
        list.projects.push_back(std::move(*project));
    }
    if (hasValue(document->root(), activeKey)) {
        list.activeId = readId(document->root(), activeKey);
        if (!list.activeId) return std::nullopt;
    }
    return list;
}

}  // namespace tidewatch
