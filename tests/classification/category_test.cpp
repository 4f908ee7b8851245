#include "classification/category.h"

#include <gmock/gmock.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "classification/category_defaults.h"

namespace tidewatch {
namespace {

using testing::ElementsAre;
using testing::Pair;
using testing::UnorderedElementsAre;

TEST(TierTest, FourInTheirOrderWithWhatIsStoredAndShown) {
    std::vector<std::pair<std::string_view, std::string_view>> texts;
    for (const auto tier : allTiers()) texts.emplace_back(rawValue(tier), displayName(tier));
    EXPECT_THAT(texts,
                ElementsAre(Pair("productivo", "Productivo"), Pair("neutral", "Neutral"),
                            Pair("distrayendo", "Distrayendo"), Pair("sincategorizar", "Sin categorizar")));
}

TEST(TierTest, IsReadFromItsRawValueOnly) {
    for (const auto tier : allTiers()) EXPECT_EQ(tierFromRaw(rawValue(tier)), tier);
    for (const auto* raw : {"", "Productivo", "productivo ", "Sin categorizar", "productive"}) {
        EXPECT_EQ(tierFromRaw(raw), std::nullopt) << raw;
    }
}

TEST(CategoryTest, FifteenInTheirOrderWithTheirTiers) {
    std::vector<std::pair<std::string_view, Tier>> rows;
    for (const auto category : allCategories()) rows.emplace_back(rawValue(category), defaultTier(category));
    using enum Tier;
    EXPECT_THAT(rows,
                ElementsAre(Pair("Audio/Video", productive), Pair("Diseño", productive),
                            Pair("Desarrollo", productive), Pair("Documentos y escritura", productive),
                            Pair("Comunicación", productive), Pair("Reuniones", productive),
                            Pair("Navegador", productive), Pair("Sistema", neutral),
                            Pair("Utilidades", neutral), Pair("Música", neutral), Pair("Juegos", distracting),
                            Pair("Entretenimiento", distracting), Pair("Social", distracting),
                            Pair("Otro", productive), Pair("Sin categorizar", uncategorized)));
}

TEST(CategoryTest, IsReadFromItsRawValueOnly) {
    for (const auto category : allCategories()) EXPECT_EQ(categoryFromRaw(rawValue(category)), category);
    for (const auto* raw : {"", "desarrollo", "Diseno", "Audio\\/Video", "Sistema "}) {
        EXPECT_EQ(categoryFromRaw(raw), std::nullopt) << raw;
    }
}

TEST(CategoryDefaultsTest, Hold116ApplicationsOnceEach) {
    std::set<std::string_view> apps;
    for (const auto& row : categoryDefaults()) apps.insert(row.app);
    EXPECT_EQ(categoryDefaults().size(), 116u);
    EXPECT_EQ(apps.size(), 116u);
}

TEST(CategoryDefaultsTest, SpreadOverThirteenCategories) {
    std::map<Category, int> counts;
    for (const auto& row : categoryDefaults()) ++counts[row.category];
    using enum Category;
    EXPECT_THAT(counts, UnorderedElementsAre(Pair(audioVideo, 16), Pair(design, 9), Pair(development, 12),
                                             Pair(documents, 16), Pair(communication, 7), Pair(meetings, 7),
                                             Pair(browser, 6), Pair(Category::system, 11), Pair(utilities, 9),
                                             Pair(music, 4), Pair(games, 7), Pair(entertainment, 7),
                                             Pair(social, 5)));
}

TEST(CategoryDefaultsTest, EveryRowIsFound) {
    for (const auto& row : categoryDefaults()) {
        EXPECT_EQ(defaultCategory(AppId(std::string(row.app))), row.category) << row.app;
    }
}

TEST(CategoryDefaultsTest, AnUnknownApplicationOrAnotherLetterCaseIsNotFound) {
    for (const auto* app :
         {"", "aaa", "zzz", "Com.google.Chrome", "com.google.chrome", "com.google.Chrome "}) {
        EXPECT_EQ(defaultCategory(AppId(app)), std::nullopt) << app;
    }
}

TEST(CategoryDefaultsTest, TheRowsThatStandWhereTheyStandOnPurpose) {
    EXPECT_EQ(defaultCategory(AppId("com.tinyspeck.slackmacgap.helper")), Category::development);
    EXPECT_EQ(defaultCategory(AppId("com.tinyspeck.slackmacgap")), Category::communication);
    EXPECT_EQ(defaultCategory(AppId("com.apple.iCal")), Category::meetings);
    EXPECT_EQ(defaultCategory(AppId("com.colliderli.iina")), Category::utilities);
    EXPECT_EQ(defaultCategory(AppId("com.brightlooms.tidewatch")), Category::utilities);
}

TEST(CategoryDefaultsTest, TheBuiltInGamesAreDistractingWithoutAnyOverride) {
    const auto category = defaultCategory(AppId("com.brightlooms.fathom.games"));
    EXPECT_EQ(category, Category::games);
    EXPECT_EQ(defaultTier(*category), Tier::distracting);
}

}  // namespace
}  // namespace tidewatch
