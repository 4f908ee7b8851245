#include "classification/category.h"

#include <array>

#include "classification/enum_table.h"

namespace tidewatch {
namespace {

struct CategoryRow {
    Category value;
    std::string_view raw;
    Tier defaultTier;
};

// Browsers and "other" count as productive on purpose: the user refines that.
constexpr auto categoryRows = enumTable(std::array{
    CategoryRow{Category::audioVideo, "Audio/Video", Tier::productive},
    CategoryRow{Category::design, "Diseño", Tier::productive},
    CategoryRow{Category::development, "Desarrollo", Tier::productive},
    CategoryRow{Category::documents, "Documentos y escritura", Tier::productive},
    CategoryRow{Category::communication, "Comunicación", Tier::productive},
    CategoryRow{Category::meetings, "Reuniones", Tier::productive},
    CategoryRow{Category::browser, "Navegador", Tier::productive},
    CategoryRow{Category::system, "Sistema", Tier::neutral},
    CategoryRow{Category::utilities, "Utilidades", Tier::neutral},
    CategoryRow{Category::music, "Música", Tier::neutral},
    CategoryRow{Category::games, "Juegos", Tier::distracting},
    CategoryRow{Category::entertainment, "Entretenimiento", Tier::distracting},
    CategoryRow{Category::social, "Social", Tier::distracting},
    CategoryRow{Category::other, "Otro", Tier::productive},
    CategoryRow{Category::uncategorized, "Sin categorizar", Tier::uncategorized},
});

constexpr auto allValues = valuesOf(categoryRows);

}  // namespace

std::span<const Category> allCategories() {
    return allValues;
}

std::string_view rawValue(Category category) {
    return rowOf(categoryRows, category).raw;
}

std::optional<Category> categoryFromRaw(std::string_view raw) {
    return valueFromRaw(categoryRows, raw);
}

Tier defaultTier(Category category) {
    return rowOf(categoryRows, category).defaultTier;
}

}  // namespace tidewatch
