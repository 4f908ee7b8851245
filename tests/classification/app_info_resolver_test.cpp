#include "classification/app_info_resolver.h"

#include <gtest/gtest.h>

#include "platform/fake/fake_workspace.h"

namespace tidewatch {
namespace {

struct AppInfoResolverTest : testing::Test {
    platform::FakeWorkspace workspace;
    AppInfoResolver resolver{workspace};
};

TEST_F(AppInfoResolverTest, ARegisteredApplicationHasItsNameAndIcon) {
    workspace.registerApplication(AppId("firefox"), {"Navegador Firefox", "firefox-esr", {}});
    EXPECT_EQ(resolver.info(AppId("firefox")),
              (AppInfo{"Navegador Firefox", AppIcon{AppIcon::Source::desktop, "firefox-esr", ""}}));
}

TEST_F(AppInfoResolverTest, ARegisteredApplicationWithoutAnIconHasNone) {
    workspace.registerApplication(AppId("tool"), {"Tool", "", {}});
    EXPECT_EQ(resolver.info(AppId("tool")), (AppInfo{"Tool", std::nullopt}));
}

TEST_F(AppInfoResolverTest, AnUnknownApplicationGoesByItsIdentifierAndHasNoIcon) {
    EXPECT_EQ(resolver.info(AppId("org.example.Unknown")), (AppInfo{"org.example.Unknown", std::nullopt}));
}

TEST_F(AppInfoResolverTest, AnUnknownApplicationKeepsItsNameThoughItIsInstalledMeanwhile) {
    const auto& before = resolver.info(AppId("gimp"));
    workspace.registerApplication(AppId("gimp"), {"GIMP", "gimp", {}});
    EXPECT_EQ(resolver.info(AppId("gimp")), (AppInfo{"gimp", std::nullopt}));
    EXPECT_EQ(&resolver.info(AppId("gimp")), &before);
}

TEST_F(AppInfoResolverTest, AKnownApplicationKeepsItsNameThoughItIsRemoved) {
    workspace.registerApplication(AppId("gimp"), {"GIMP", "gimp-icon", {}});
    const auto before = resolver.info(AppId("gimp"));
    workspace.removeApplication(AppId("gimp"));
    EXPECT_EQ(resolver.info(AppId("gimp")), before);
    EXPECT_EQ(workspace.questions(), 1);
}

TEST_F(AppInfoResolverTest, TheBuiltInGamesHaveTheirOwnNameAndSymbol) {
    workspace.registerApplication(AppId("com.brightlooms.fathom.games"), {"Impostor", "impostor", {}});
    EXPECT_EQ(
        resolver.info(AppId("com.brightlooms.fathom.games")),
        (AppInfo{"Fathom · Juegos", AppIcon{AppIcon::Source::symbol, "gamecontroller.fill", "Juegos"}}));
}

TEST_F(AppInfoResolverTest, AnAnswerStaysWhereItIsWhileOthersAreLookedUp) {
    const auto& first = resolver.info(AppId("first"));
    for (int i = 0; i < 1000; ++i) static_cast<void>(resolver.info(AppId("app" + std::to_string(i))));
    EXPECT_EQ(first.name, "first");
}

}  // namespace
}  // namespace tidewatch
