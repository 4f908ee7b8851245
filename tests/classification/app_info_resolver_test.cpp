#include "classification/app_info_resolver.h"

#include <gtest/gtest.h>

#include "platform/fake/fake_applications.h"

namespace tidewatch {
namespace {

struct AppInfoResolverTest : testing::Test {
    platform::FakeApplications applications;
    AppInfoResolver resolver{applications};
};

TEST_F(AppInfoResolverTest, ARegisteredApplicationHasItsNameAndIcon) {
    applications.registerApplication(AppId("firefox"), {"Navegador Firefox", "firefox-esr", {}});
    EXPECT_EQ(resolver.info(AppId("firefox")),
              (AppInfo{"Navegador Firefox", AppIcon{AppIcon::Source::desktop, "firefox-esr", ""}}));
}

TEST_F(AppInfoResolverTest, ARegisteredApplicationWithoutAnIconHasNone) {
    applications.registerApplication(AppId("tool"), {"Tool", "", {}});
    EXPECT_EQ(resolver.info(AppId("tool")), (AppInfo{"Tool", std::nullopt}));
}

TEST_F(AppInfoResolverTest, AnUnknownApplicationHasItsIdentifierAsNameAndNoIcon) {
    EXPECT_EQ(resolver.info(AppId("org.example.Unknown")), (AppInfo{"org.example.Unknown", std::nullopt}));
}

TEST_F(AppInfoResolverTest, AnUnknownApplicationKeepsItsNameThoughItIsInstalledMeanwhile) {
    const auto& before = resolver.info(AppId("gimp"));
    applications.registerApplication(AppId("gimp"), {"GIMP", "gimp", {}});
    EXPECT_EQ(resolver.info(AppId("gimp")), (AppInfo{"gimp", std::nullopt}));
    EXPECT_EQ(&resolver.info(AppId("gimp")), &before);
}

TEST_F(AppInfoResolverTest, AKnownApplicationKeepsItsNameThoughItIsRemoved) {
    applications.registerApplication(AppId("gimp"), {"GIMP", "gimp-icon", {}});
    const auto before = resolver.info(AppId("gimp"));
    applications.removeApplication(AppId("gimp"));
    EXPECT_EQ(resolver.info(AppId("gimp")), before);
    EXPECT_EQ(applications.lookupCount(), 1);
}

TEST_F(AppInfoResolverTest, TheBuiltInGamesHaveTheirOwnNameAndSymbol) {
    applications.registerApplication(AppId("com.brightlooms.fathom.games"), {"Impostor", "impostor", {}});
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
