#include <gtest/gtest.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QSet>
#include <QWheelEvent>
#include <QtTest/QTest>

#include "wellbeing/views/break_scene.h"

namespace tidewatch {
namespace {

struct BreakBombViewTest : testing::Test, BreakScene {
    BreakBombViewTest() { QAccessible::setActive(true); }
    ~BreakBombViewTest() override {
        EXPECT_TRUE(viewWarnings_.isEmpty()) << viewWarnings_.join("\n").toStdString();
    }

    void SetUp() override { showWindow(); }

    [[nodiscard]] QQuickItem& the(const char* name) const { return *item(name); }
    [[nodiscard]] int count(const char* property) const { return seen(property).toInt(); }
    [[nodiscard]] bool isUp() const { return item("alert")->isVisible(); }

    /// After the view was added to the window.
    [[nodiscard]] bool buttonGetsFocus() const {
        return QTest::qWaitFor([this] { return item("dismiss")->hasActiveFocus(); }, 60'000);
    }

    [[nodiscard]] bool runs(const char* animation) const {
        return view_->findChild<QObject*>(animation)->property("running").toBool();
    }

    void turnWheel(QPointF place) {
        QWheelEvent event(place, window_.mapToGlobal(place), {0, -60}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window_, &event);
    }
};

TEST_F(BreakBombViewTest, CoversTheWindowWhileAnAlertIsActive) {
    EXPECT_FALSE(isUp());
    sitUntilAlert();
    EXPECT_TRUE(isUp());
    EXPECT_EQ(placeOf(the("backdrop")), QRectF(0, 0, 900, 620));
    EXPECT_EQ(the("card").width(), 480);
    EXPECT_NEAR(placeOf(the("card")).center().x(), 450, 1);
    EXPECT_NEAR(placeOf(the("card")).center().y(), 310, 1);
}

TEST_F(BreakBombViewTest, ShowsThePresentersTexts) {
    sitUntilAlert(9);
    const auto text = [this](const char* name) { return the(name).property("text").toString(); };
    EXPECT_EQ(text("headline"), "9 HORAS HOY");
    EXPECT_EQ(text("subline"), presenter_.subline());
    EXPECT_EQ(text("title"), "Cuello");
    EXPECT_EQ(text("instruction"), presenter_.instruction());
    EXPECT_EQ(text("motivational"), presenter_.motivational());
    EXPECT_EQ(text("sitting"), "1h 00m sentado continuo");
    EXPECT_EQ(text("dismiss"), "Listo · ya me paré");
}

TEST_F(BreakBombViewTest, NothingBelowReceivesAClickOrTheWheel) {
    const auto below = placeOf(the("below0")).center().toPoint();
    QTest::mouseClick(&window_, Qt::LeftButton, Qt::NoModifier, below);
    EXPECT_EQ(count("clicks"), 1);
    sitUntilAlert();
    for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        QTest::mouseClick(&window_, button, Qt::NoModifier, below);
    }
    EXPECT_EQ(count("clicks"), 1);
    turnWheel(below);
    turnWheel({450, 310});
    QTest::qWait(200);
    EXPECT_EQ(the("pane").property("contentY").toDouble(), 0);
    EXPECT_TRUE(isUp());
}

TEST_F(BreakBombViewTest, NothingBelowReceivesAKey) {
    press(Qt::Key_X);
    press(Qt::Key_2, Qt::ControlModifier);
    const int keysBefore = count("keys");
    EXPECT_EQ(count("shortcuts"), 1);
    sitUntilAlert();
    for (const auto key : {Qt::Key_Escape, Qt::Key_X, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Down})
        press(key);
    press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(count("keys"), keysBefore);
    EXPECT_EQ(count("shortcuts"), 1);
    EXPECT_EQ(the("pane").property("contentY").toDouble(), 0);
    EXPECT_TRUE(isUp()) << "not even Escape takes it down";
}

TEST_F(BreakBombViewTest, TheButtonHasTheFocusAndTheTabulatorStaysOnIt) {
    sitUntilAlert();
    EXPECT_TRUE(the("dismiss").hasActiveFocus());
    press(Qt::Key_Tab);
    EXPECT_TRUE(the("dismiss").hasActiveFocus());
    press(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_TRUE(the("dismiss").hasActiveFocus());
}

TEST_F(BreakBombViewTest, TheButtonTakesItDownAndTheFocusGoesBack) {
    the("below3").forceActiveFocus();
    sitUntilAlert();
    click(the("dismiss"));
    EXPECT_FALSE(isUp());
    EXPECT_FALSE(reminder_.alertActive());
    EXPECT_TRUE(the("below3").hasActiveFocus());
}

TEST_F(BreakBombViewTest, TheButtonTakesTheKeys) {
    for (const auto key : {Qt::Key_Return, Qt::Key_Space}) {
        sitUntilAlert();
        press(key);
        EXPECT_FALSE(isUp());
    }
}

TEST_F(BreakBombViewTest, AnAlertThatStandsWhenTheWindowOpensHasTheFocusToo) {
    sitUntilAlert();
    showWindow();
    EXPECT_TRUE(isUp());
    EXPECT_TRUE(buttonGetsFocus());
    press(Qt::Key_Return);
    EXPECT_FALSE(isUp());
}

TEST_F(BreakBombViewTest, AWindowMayCloseDuringAnAlert) {
    sitUntilAlert();
    for (int i = 0; i < 3; ++i) {
        showWindow();
        EXPECT_TRUE(buttonGetsFocus());
    }
    view_.reset();
    presenter_.dismiss();
    showWindow();
    EXPECT_FALSE(isUp());
}

TEST_F(BreakBombViewTest, TheRingGoesOutAndTheBombRocksWhileItIsUp) {
    EXPECT_FALSE(runs("pulse"));
    EXPECT_FALSE(runs("jiggle"));
    sitUntilAlert();
    EXPECT_TRUE(runs("pulse"));
    EXPECT_TRUE(runs("jiggle"));
    double minScale = 2;
    double maxScale = 0;
    double minTurn = 90;
    double maxTurn = -90;
    // Both cover their whole ranges, in as many frames as the machine can render.
    const auto wholeRanges = [&] {
        return minScale < 1.04 && maxScale > 1.16 && minTurn < -7 && maxTurn > 7;
    };
    for (int i = 0; i < 140 || (i < 6000 && !wholeRanges()); ++i) {
        QTest::qWait(10);
        const double scale = the("ring").scale();
        const double turn = the("bomb").property("turn").toDouble();
        // Out and pale belong together.
        EXPECT_NEAR((scale - 1) / 0.18, 1 - the("ring").opacity() / 0.7, 1e-3);
        minScale = std::min(minScale, scale);
        maxScale = std::max(maxScale, scale);
        minTurn = std::min(minTurn, turn);
        maxTurn = std::max(maxTurn, turn);
    }
    EXPECT_LT(minScale, 1.04);
    EXPECT_GT(maxScale, 1.16);
    EXPECT_LE(maxScale, 1.18);
    EXPECT_NEAR(minTurn, -8, 1);
    EXPECT_NEAR(maxTurn, 8, 1);
}

TEST_F(BreakBombViewTest, NothingMovesWhereItCannotBeSeen) {
    sitUntilAlert();
    window_.hide();
    QCoreApplication::processEvents();
    EXPECT_FALSE(runs("pulse"));
    EXPECT_FALSE(runs("jiggle"));
    window_.show();
    QCoreApplication::processEvents();
    EXPECT_TRUE(runs("pulse"));
    presenter_.dismiss();
    EXPECT_FALSE(runs("pulse"));
    EXPECT_FALSE(runs("jiggle"));
}

TEST_F(BreakBombViewTest, IsADialogWithItsReasonAsItsName) {
    sitUntilAlert();
    auto* dialog = QAccessible::queryAccessibleInterface(item("alert"));
    EXPECT_EQ(dialog->role(), QAccessible::Dialog);
    EXPECT_EQ(dialog->text(QAccessible::Name), "2 HORAS SENTADO");
    EXPECT_EQ(dialog->text(QAccessible::Description), presenter_.subline());
    auto* button = QAccessible::queryAccessibleInterface(item("dismiss"));
    EXPECT_EQ(button->text(QAccessible::Name), "Listo · ya me paré");
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(isUp());
}

TEST_F(BreakBombViewTest, FitsTheSmallestWindowWithEveryExerciseInEveryTheme) {
    showWindow({820, 560});
    for (const auto& theme : themes_.themes()) {
        theme_.switchTo(theme.id);
        for (std::size_t i = 0; i < allStretches().size(); ++i) {
            sitUntilAlert(12);
            SCOPED_TRACE(theme.id + " " + presenter_.title().toStdString());
            const auto card = placeOf(the("card"));
            EXPECT_TRUE(QRectF(0, 8, 820, 544).contains(card)) << card.height();
            for (const auto* name :
                 {"headline", "subline", "title", "instruction", "motivational", "sitting", "dismiss"}) {
                EXPECT_TRUE(card.adjusted(20, 20, -20, -20).contains(placeOf(the(name)))) << name;
            }
            presenter_.dismiss();
        }
    }
}

}  // namespace
}  // namespace tidewatch
