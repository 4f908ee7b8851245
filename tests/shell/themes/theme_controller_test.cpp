#include "shell/themes/theme_controller.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/fake/memory_preferences.h"

namespace tidewatch {
namespace {

struct ThemeControllerTest : testing::Test {
    platform::MemoryPreferences preferences;
    Settings settings{preferences};
    Broadcaster broadcaster;
    ThemeRegistry registry;
};

TEST_F(ThemeControllerTest, StartsWithOchreOnAFreshSystem) {
    const ThemeController controller(registry, settings, broadcaster);
    EXPECT_EQ(controller.active().id, "ochre");
}

TEST_F(ThemeControllerTest, StartsWithTheStoredTheme) {
    settings.setActiveThemeId("liquid");
    const ThemeController controller(registry, settings, broadcaster);
    EXPECT_EQ(controller.active().id, "liquid");
}

TEST_F(ThemeControllerTest, AStaleStoredIdFallsBackToTheFirstThemeAndStaysStored) {
    settings.setActiveThemeId("sepia");
    const ThemeController controller(registry, settings, broadcaster);
    EXPECT_EQ(controller.active().id, "ochre");
    EXPECT_EQ(settings.activeThemeId(), "sepia");
}

TEST_F(ThemeControllerTest, SwitchToActivatesThenStoresThenBroadcasts) {
    ThemeController controller(registry, settings, broadcaster);
    std::vector<std::string> seen;
    const auto note = [&](const char* what) {
        seen.push_back(std::string(what) + ": active " + controller.active().id + ", stored " +
                       settings.activeThemeId());
    };
    const auto changed = controller.changed.connect([&] { note("changed"); });
    const auto broadcast = broadcaster.observe<ThemeChanged>([&](const ThemeChanged&) { note("broadcast"); });
    controller.switchTo("hacker");
    EXPECT_EQ(seen, (std::vector<std::string>{"changed: active hacker, stored ochre",
                                              "broadcast: active hacker, stored hacker"}));
}

TEST_F(ThemeControllerTest, SwitchToAnUnknownIdActivatesOchreStoresTheIdAsGivenAndBroadcasts) {
    settings.setActiveThemeId("minimal");
    ThemeController controller(registry, settings, broadcaster);
    int broadcasts = 0;
    const auto broadcast = broadcaster.observe<ThemeChanged>([&](const ThemeChanged&) { ++broadcasts; });
    controller.switchTo("sepia");
    EXPECT_EQ(controller.active().id, "ochre");
    EXPECT_EQ(settings.activeThemeId(), "sepia");
    EXPECT_EQ(broadcasts, 1);
}

TEST_F(ThemeControllerTest, SwitchToTheActiveThemeBroadcastsAllTheSame) {
    ThemeController controller(registry, settings, broadcaster);
    int broadcasts = 0;
    const auto broadcast = broadcaster.observe<ThemeChanged>([&](const ThemeChanged&) { ++broadcasts; });
    controller.switchTo("ochre");
    controller.switchTo("ochre");
    EXPECT_EQ(broadcasts, 2);
}

}  // namespace
}  // namespace tidewatch
