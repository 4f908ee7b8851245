#include "classification/category.h"

#include <array>

#include "classification/closed_list.h"

namespace tidewatch {
namespace {

struct Row {
    Category value;
    std::string_view raw;
    Tier defaultTier;
};

// Browsers and the rest count as productive on purpose: the user narrows that down.
constexpr std::array rows{
    Row{Category::audioVideo, "Audio/Video", Tier::productive},
    Row{Category::design, "Diseño", Tier::productive},
    Row{Category::development, "Desarrollo", Tier::productive},
    Row{Category::documents, "Documentos y escritura", Tier::productive},
    Row{Category::communication, "Comunicación", Tier::productive},
    Row{Category::meetings, "Reuniones", Tier::productive},
    Row{Category::browser, "Navegador", Tier::productive},
    Row{Category::system, "Sistema", Tier::neutral},
    Row{Category::utilities, "Utilidades", Tier::neutral},
    Row{Category::music, "Música", Tier::neutral},
    Row{Category::games, "Juegos", Tier::distracting},
    Row{Category::entertainment, "Entretenimiento", Tier::distracting},
    Row{Category::social, "Social", Tier::distracting},
    Row{Category::other, "Otro", Tier::productive},
    Row{Category::uncategorized, "Sin categorizar", Tier::uncategorized},
};

constexpr auto categories = valuesOf(rows);

}  // namespace

std::span<const Category> allCategories() {
    return categories;
}

std::string_view rawValue(Category category) {
    return rowOf(rows, category).raw;
}

std::optional<Category> categoryFromRaw(std::string_view raw) {
    return valueFromRaw(rows, raw);
}

Tier defaultTier(Category category) {
    return rowOf(rows, category).defaultTier;
}

}  // namespace tidewatch
