#include "shell/widgets/widget_kind.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace tidewatch {
namespace {

using testing::ElementsAre;

TEST(WidgetKindTest, TheKindsStandInTheOrderOfTheMenu) {
    std::vector<std::string> names, titles, icons;
    std::vector<PanelSize> sizes;
    std::vector<int> steps;
    for (const auto kind : allWidgetKinds()) {
        names.emplace_back(rawValue(kind));
        titles.emplace_back(title(kind));
        icons.emplace_back(menuIcon(kind));
        sizes.push_back(defaultSize(kind));
        steps.push_back(cascadeIndex(kind));
    }
    EXPECT_THAT(names, ElementsAre("productivity", "system", "streak", "goals", "speed", "project", "topApps",
                                   "arcade"));
    EXPECT_THAT(titles, ElementsAre("Productividad", "Sistema", "Racha & Análisis", "Metas & Estrellas",
                                    "Test de Velocidad", "Proyecto Activo", "Top Apps", "Mini-Arcade"));
    EXPECT_THAT(icons, ElementsAre("chart.pie.fill", "cpu", "flame.fill", "target", "speedometer",
                                   "folder.fill", "square.grid.2x2.fill", "gamecontroller.fill"));
    EXPECT_THAT(sizes, ElementsAre(PanelSize{214, 150}, PanelSize{214, 176}, PanelSize{226, 138},
                                   PanelSize{214, 152}, PanelSize{196, 196}, PanelSize{206, 92},
                                   PanelSize{214, 176}, PanelSize{214, 374}));
    EXPECT_THAT(steps, ElementsAre(0, 1, 2, 3, 4, 5, 6, 7));
}

TEST(WidgetKindTest, AKindIsFoundByItsExactNameOnly) {
    for (const auto kind : allWidgetKinds()) EXPECT_EQ(widgetKind(rawValue(kind)), kind);
    for (const auto* other : {"", "Productivity", "topapps", "arcade ", "clock"}) {
        EXPECT_EQ(widgetKind(other), std::nullopt) << other;
    }
}

}  // namespace
}  // namespace tidewatch
