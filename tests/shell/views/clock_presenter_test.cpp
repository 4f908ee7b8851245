#include "shell/views/clock_presenter.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "shell/views/clock_scene.h"
#include "ui/style/qt_color.h"

namespace tidewatch {
namespace {

using std::chrono::seconds;

struct ClockPresenterTest : testing::Test, ClockWorld {
    [[nodiscard]] ClockPresenter& clock() { return *presenter_; }

    /// The names of the present stars, "*" for a filled one and "." for an empty one.
    [[nodiscard]] std::string stars() {
        std::string text;
        for (const auto& name : clock().stars())
            text += name == "star.fill" ? "*" : name == "star" ? "." : "?";
        return text;
    }
};

TEST_F(ClockPresenterTest, ShowsZeroOnAFreshDay) {
    EXPECT_EQ(clock().digits(), "00:00:00");
    EXPECT_EQ(clock().sessionLine(), "sesión · 00:00:00");
}

TEST_F(ClockPresenterTest, TheLargeDigitsAreTheDayAndTheSmallLineIsTheSession) {
    startAt(Seconds(3600));
    runFor(seconds(5));
    EXPECT_EQ(clock().digits(), "01:00:05");
    EXPECT_EQ(clock().sessionLine(), "sesión · 00:00:05");
}

TEST_F(ClockPresenterTest, HoursAreNotCapped) {
    startAt(Seconds(360'000));
    EXPECT_EQ(clock().digits(), "100:00:00");
}

TEST_F(ClockPresenterTest, AnOrdinarySecondAnnouncesTheTextsAndNothingElse) {
    runFor(seconds(1));
    const QSignalSpy digits(&clock(), &ClockPresenter::digitsChanged);
    const QSignalSpy session(&clock(), &ClockPresenter::sessionLineChanged);
    const QSignalSpy dot(&clock(), &ClockPresenter::dotColorChanged);
    const QSignalSpy stars(&clock(), &ClockPresenter::starsChanged);
    const QSignalSpy theme(&clock(), &ClockPresenter::themeChanged);
    runFor(seconds(3));
    EXPECT_EQ(digits.count(), 3);
    EXPECT_EQ(session.count(), 3);
    EXPECT_EQ(dot.count(), 0);
    EXPECT_EQ(stars.count(), 0);
    EXPECT_EQ(theme.count(), 0);
}

TEST_F(ClockPresenterTest, AnIdleSecondAnnouncesNothingAfterTheFirst) {
    machine_.inputActivity.set(300);
    runFor(seconds(1));
    const QSignalSpy digits(&clock(), &ClockPresenter::digitsChanged);
    const QSignalSpy session(&clock(), &ClockPresenter::sessionLineChanged);
    const QSignalSpy accessibleText(&clock(), &ClockPresenter::accessibleTextChanged);
    runFor(seconds(10));
    EXPECT_EQ(digits.count() + session.count() + accessibleText.count(), 0);
}

TEST_F(ClockPresenterTest, TheDotIsTheActiveAccentWhileActiveAndTheIdleOneOtherwise) {
    for (const auto& theme : themes_.themes()) {
        SCOPED_TRACE(theme.id);
        theme_.switchTo(theme.id);
        machine_.inputActivity.set(0);
        runFor(seconds(1));
        EXPECT_EQ(clock().dotColor(), toQColor(theme.accentActive));
        machine_.inputActivity.set(300);
        runFor(seconds(1));
        EXPECT_EQ(clock().dotColor(), toQColor(theme.accentIdle));
    }
}

TEST_F(ClockPresenterTest, NoStarsShowsFiveEmptyOnes) {
    EXPECT_EQ(stars(), ".....");
}

TEST_F(ClockPresenterTest, ThreeStarsShowsThreeFilledAndTwoEmptyOnes) {
    stars_ = 3;
    runFor(seconds(1));
    EXPECT_EQ(stars(), "***..");
}

TEST_F(ClockPresenterTest, FiveStarsOrMoreShowsFiveFilledOnes) {
    stars_ = 5;
    runFor(seconds(1));
    EXPECT_EQ(stars(), "*****");
    stars_ = 9;
    runFor(seconds(1));
    EXPECT_EQ(stars(), "*****");
}

TEST_F(ClockPresenterTest, FewerThanNoStarsShowsFiveEmptyOnes) {
    stars_ = -1;
    runFor(seconds(1));
    EXPECT_EQ(stars(), ".....");
}

TEST_F(ClockPresenterTest, FilledStarsAreTheAccentAt07AndEmptyOnesTheSecondaryTextAt022) {
    theme_.switchTo("editorial");
    stars_ = 1;
    runFor(seconds(1));
    ASSERT_EQ(clock().starColors().size(), 5);
    EXPECT_EQ(clock().starColors()[0], toQColor(Color::hex6(0x7BD88F).at(0.7)));
    EXPECT_EQ(clock().starColors()[1], toQColor(Color{0.42, 0.42, 0.40}.at(0.22)));
    theme_.switchTo("liquid");
    EXPECT_EQ(clock().starColors()[0], toQColor(Color::whiteAt(0.9 * 0.7)));
    EXPECT_EQ(clock().starColors()[4], toQColor(Color::whiteAt(0.78 * 0.22)));
}

TEST_F(ClockPresenterTest, AThemeSwitchAnnouncesTheThemeOnceAndKeepsTheTexts) {
    runFor(seconds(1));
    const QSignalSpy theme(&clock(), &ClockPresenter::themeChanged);
    const QSignalSpy digits(&clock(), &ClockPresenter::digitsChanged);
    theme_.switchTo("hacker");
    EXPECT_EQ(theme.count(), 1);
    EXPECT_EQ(digits.count(), 0);
    EXPECT_EQ(clock().panelWidth(), 260);
    EXPECT_EQ(clock().panelHeight(), 110);
    EXPECT_EQ(clock().cornerRadius(), 4);
    EXPECT_EQ(clock().background(), PanelBackgroundItem::Hacker);
    EXPECT_EQ(clock().primaryText(), toQColor({0, 1, 0.255}));
    EXPECT_EQ(clock().secondaryText(), toQColor({0, 0.667, 0.165}));
}

TEST_F(ClockPresenterTest, TheLabelIsInUpperCaseWithItsTracking) {
    theme_.switchTo("liquid");
    EXPECT_EQ(clock().label(), "TIDE · WATCH");
    EXPECT_EQ(clock().labelFont().letterSpacing(), 4.5);
    EXPECT_EQ(clock().labelFont().pixelSize(), 9);
}

TEST_F(ClockPresenterTest, MinimalShowsItsDigitsAlone) {
    theme_.switchTo("minimal");
    EXPECT_FALSE(clock().showsLabel());
    EXPECT_FALSE(clock().showsStatusDot());
    EXPECT_FALSE(clock().showsDailyTotal());
    EXPECT_TRUE(clock().digitsHaveEqualWidth());
    EXPECT_FALSE(clock().sessionDigitsHaveEqualWidth());
}

TEST_F(ClockPresenterTest, OnlyLiquidCrystalMoves) {
    for (const auto& theme : themes_.themes()) {
        theme_.switchTo(theme.id);
        EXPECT_EQ(clock().backgroundMoves(), theme.id == "liquid") << theme.id;
    }
}

TEST_F(ClockPresenterTest, SaysInWordsWhatItShows) {
    startAt(Seconds(3600));
    stars_ = 2;
    runFor(seconds(1));
    EXPECT_EQ(clock().accessibleText(), "Hoy 01:00:01, sesión 00:00:01, activo, 2 de 5 estrellas");
    machine_.inputActivity.set(300);
    runFor(seconds(1));
    EXPECT_EQ(clock().accessibleText(), "Hoy 01:00:01, sesión 00:00:01, inactivo, 2 de 5 estrellas");
}

TEST_F(ClockPresenterTest, AResetShowsAtOnce) {
    startAt(Seconds(10'000));
    runFor(seconds(2));
    fixture_->engine.resetToday();
    EXPECT_EQ(clock().digits(), "00:00:00");
    EXPECT_EQ(clock().sessionLine(), "sesión · 00:00:00");
}

TEST_F(ClockPresenterTest, TheWindowTellsWhetherItIsTranslucentAndOnScreen) {
    EXPECT_TRUE(clock().translucent());
    EXPECT_FALSE(clock().onScreen());
    const QSignalSpy translucent(&clock(), &ClockPresenter::translucentChanged);
    clock().setTranslucent(false);
    clock().setTranslucent(false);
    clock().setOnScreen(true);
    EXPECT_EQ(translucent.count(), 1);
    EXPECT_FALSE(clock().translucent());
    EXPECT_TRUE(clock().onScreen());
}

}  // namespace
}  // namespace tidewatch
