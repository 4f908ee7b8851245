#include "shell/reclassify_menu.h"

#include <gtest/gtest.h>

#include <optional>

#include "analysis/dashboard_fixture.h"

namespace tidewatch {
namespace {

class ReclassifyMenuTest : public testing::Test {
protected:
    ReclassifyMenuTest() {
        model_.reload();
        reloads_ = model_.changed.connect([this](DashboardModel::Field field) {
            if (field == DashboardModel::Field::allDayApps) ++reloadCount_;
        });
    }

    [[nodiscard]] MenuRows menu() { return reclassifyMenu(editor_, fixture_.categories, model_); }

    void choose(const std::string& submenu, const std::string& title) {
        for (const auto& row : menu()) {
            if (row.title != submenu) continue;
            for (const auto& inner : row.children) {
                if (inner.title == title) return inner.action();
            }
        }
        ADD_FAILURE() << "no " << title << " in " << submenu;
    }

    static std::vector<std::string> titles(const MenuRows& rows) {
        std::vector<std::string> result;
        for (const auto& row : rows) result.push_back((row.checked ? "✓" : "") + row.title);
        return result;
    }

    using Titles = std::vector<std::string>;

    const AppId editor_{"com.apple.dt.Xcode"};  // development, productive
    test::FakeWorld world_;
    test::DashboardFixture fixture_{world_};
    DashboardModel model_{fixture_.sources()};
    Connection reloads_;
    int reloadCount_ = 0;
};

TEST_F(ReclassifyMenuTest, HasThreeRowsOfWhichTheSecondNamesTheCategory) {
    EXPECT_EQ(titles(menu()), (Titles{"Categoría", "Tier de Desarrollo", "Restablecer default"}));
}

TEST_F(ReclassifyMenuTest, AllCategoriesInTheirOrderWithThePresentOneChecked) {
    EXPECT_EQ(titles(menu()[0].children),
              (Titles{"Audio/Video", "Diseño", "✓Desarrollo", "Documentos y escritura", "Comunicación",
                      "Reuniones", "Navegador", "Sistema", "Utilidades", "Música", "Juegos",
                      "Entretenimiento", "Social", "Otro", "Sin categorizar"}));
}

TEST_F(ReclassifyMenuTest, AllTiersInTheirOrderWithThePresentOneChecked) {
    EXPECT_EQ(titles(menu()[1].children),
              (Titles{"✓Productivo", "Neutral", "Distrayendo", "Sin categorizar"}));
}

TEST_F(ReclassifyMenuTest, ACategoryIsOfTheApplicationAndReloads) {
    choose("Categoría", "Juegos");
    EXPECT_EQ(fixture_.categories.category(editor_), Category::games);
    EXPECT_EQ(fixture_.categories.category(AppId("com.microsoft.VSCode")), Category::development);
    EXPECT_EQ(reloadCount_, 1);
    EXPECT_EQ(menu()[1].title, "Tier de Juegos");
}

TEST_F(ReclassifyMenuTest, ATierIsOfAllApplicationsOfTheCategoryAndReloads) {
    choose("Tier de Desarrollo", "Neutral");
    EXPECT_EQ(fixture_.categories.tier(editor_), Tier::neutral);
    EXPECT_EQ(fixture_.categories.tier(AppId("com.microsoft.VSCode")), Tier::neutral);
    EXPECT_EQ(reloadCount_, 1);
}

TEST_F(ReclassifyMenuTest, TheDefaultsComeBackForTheApplicationAndForTheCategoryItHad) {
    fixture_.categories.setTier(Tier::distracting, Category::development);
    fixture_.categories.setTier(Tier::productive, Category::games);
    fixture_.categories.setCategory(Category::games, editor_);
    menu()[2].action();
    EXPECT_EQ(fixture_.categories.category(editor_), Category::development);
    EXPECT_EQ(fixture_.categories.tier(Category::games), Tier::distracting);
    EXPECT_EQ(fixture_.categories.tier(Category::development), Tier::distracting);
    EXPECT_EQ(reloadCount_, 1);
}

TEST_F(ReclassifyMenuTest, ThePresentChoiceMayBeChosenAgain) {
    choose("Categoría", "Desarrollo");
    EXPECT_EQ(reloadCount_, 1);
    EXPECT_EQ(fixture_.categories.category(editor_), Category::development);
}

}  // namespace
}  // namespace tidewatch
