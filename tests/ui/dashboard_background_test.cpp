#include "ui/control_test.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QtTest/QTest>

#include "platform/fake/fake_clock.h"
#include "ui/backgrounds/liquid_background.h"
#include "ui/backgrounds/wall_clock.h"

namespace tidewatch {
namespace {

using DashboardBackgroundTest = ControlTest;

TEST_F(DashboardBackgroundTest, TheDashboardHasTheThemesDecoration) {
    show("DashboardBackground { width: 200; height: 100 }");
    const auto shown = [this](const char* name) { return item(name) != nullptr; };
    EXPECT_FALSE(shown("paperGrain") || shown("scanlines") || shown("liquid"));
    theme_.switchTo("editorial");
    EXPECT_TRUE(shown("paperGrain"));
    theme_.switchTo("hacker");
    EXPECT_FALSE(shown("paperGrain"));
    EXPECT_TRUE(shown("scanlines"));
    theme_.switchTo("liquid");
    EXPECT_TRUE(shown("liquid"));
}

TEST_F(DashboardBackgroundTest, TheLiquidBehindTheDashboardHasItsSpecifiedIntensity) {
    theme_.switchTo("liquid");
    show("DashboardBackground { width: 200; height: 100 }");
    for (const QQuickItem* shown = item("liquid"); shown != nullptr; shown = shown->parentItem()) {
        EXPECT_EQ(shown->opacity(), 1);
    }
    EXPECT_EQ(item("liquid")->property("intensity").toReal(), 0.45);
}

TEST_F(DashboardBackgroundTest, TheBackgroundIsAnimatedOnlyInItsThemeAndWhileVisible) {
    platform::FakeClock clock{Instant(std::chrono::seconds(1'764'000'000))};
    WallClock time(clock);
    show("DashboardBackground { width: 200; height: 100 }");
    view_->setProperty("time", QVariant::fromValue(&time));
    EXPECT_EQ(item("liquid"), nullptr);
    theme_.switchTo("liquid");
    auto& liquid = *qobject_cast<LiquidBackground*>(item("liquid"));
    EXPECT_EQ(liquid.time(), &time);
    EXPECT_TRUE(liquid.isMoving());
    view_->setProperty("running", false);
    EXPECT_FALSE(liquid.isMoving());
    view_->setProperty("running", true);
    EXPECT_TRUE(liquid.isMoving());
    view_->setVisible(false);
    EXPECT_FALSE(liquid.isMoving());
    theme_.switchTo("ochre");
    EXPECT_EQ(item("liquid"), nullptr);
}

}  // namespace
}  // namespace tidewatch
