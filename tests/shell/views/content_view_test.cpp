#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFontMetricsF>

#include "core/size_option.h"
#include "shell/views/clock_scene.h"
#include "ui/backgrounds/liquid_background.h"
#include "ui/style/qt_color.h"
#include "ui/symbols/symbol.h"
#include "ui/symbols/symbol_row.h"
#include "ui/texts/tabular_text.h"

namespace tidewatch {
namespace {

using std::chrono::seconds;

struct ContentViewTest : testing::Test, ClockScene {
    ~ContentViewTest() override {
        EXPECT_TRUE(viewWarnings_.isEmpty()) << viewWarnings_.join("\n").toStdString();
    }

    template <class Item>
    [[nodiscard]] Item* find(const char* name) const {
        return qobject_cast<Item*>(item(name));
    }

    [[nodiscard]] TabularText& label() const { return *find<TabularText>("label"); }
    [[nodiscard]] TabularText& digits() const { return *find<TabularText>("digits"); }
    [[nodiscard]] TabularText& session() const { return *find<TabularText>("session"); }
    [[nodiscard]] Symbol& dot() const { return *find<Symbol>("dot"); }
    [[nodiscard]] SymbolRow& stars() const { return *find<SymbolRow>("stars"); }
    [[nodiscard]] LiquidBackground& liquid() const { return *view_->findChild<LiquidBackground*>(); }

    /// The item's rectangle in the view.
    [[nodiscard]] QRectF place(const QQuickItem& shown) const {
        return shown.mapRectToItem(view_.get(), {0, 0, shown.width(), shown.height()});
    }
};

TEST_F(ContentViewTest, LoadsInEveryThemeAtEverySizeWithoutAWarning) {
    for (const auto& theme : themes_.themes()) {
        theme_.switchTo(theme.id);
        for (const auto size : allSizeOptions()) {
            SCOPED_TRACE(theme.id + " at " + std::to_string(rawValue(size)));
            show(rawValue(size));
            const auto shown = picture();
            EXPECT_EQ(shown.width(), std::ceil(theme.size.width * rawValue(size)));
            EXPECT_EQ(shown.height(), std::ceil(theme.size.height * rawValue(size)));
        }
    }
}

TEST_F(ContentViewTest, IsAsLargeAsTheThemesDrawingByItself) {
    show(1);
    EXPECT_EQ(view_->implicitWidth(), 220);
    EXPECT_EQ(view_->implicitHeight(), 124);
    theme_.switchTo("minimal");
    EXPECT_EQ(view_->implicitWidth(), 180);
    EXPECT_EQ(view_->implicitHeight(), 70);
}

TEST_F(ContentViewTest, ASecondChangesTheTexts) {
    show(1);
    EXPECT_EQ(digits().text(), "00:00:00");
    const auto before = picture();
    runFor(seconds(1));
    EXPECT_EQ(digits().text(), "00:00:01");
    EXPECT_EQ(session().text(), "sesión · 00:00:01");
    EXPECT_NE(picture(), before);
}

/// The smallest rectangle that holds all pixels in which two pictures differ.
QRect difference(const QImage& one, const QImage& other) {
    QRect found;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y)) found |= QRect(x, y, 1, 1);
        }
    }
    return found;
}

TEST_F(ContentViewTest, ASecondChangesNothingOutsideOfTheTwoTexts) {
    show(1);
    const auto before = picture();
    runFor(seconds(1));
    const auto changed = difference(before, picture());
    EXPECT_FALSE(changed.isEmpty());
    const auto texts = place(digits()) | place(session());
    EXPECT_TRUE(texts.adjusted(-1, -1, 1, 1).contains(changed));
}

TEST_F(ContentViewTest, AnotherSecondMovesNoDigitThatStays) {
    theme_.switchTo("minimal");
    startAt(Seconds(10));
    show(1);
    const auto before = picture();
    runFor(seconds(1));
    // Only the last of the eight cells may differ.
    const auto changed = difference(before, picture());
    const auto line = place(digits());
    EXPECT_GT(changed.left(), line.left() + line.width() * 0.8);
}

TEST_F(ContentViewTest, AThemeSwitchUpdatesTheSameView) {
    show(1);
    theme_.switchTo("editorial");
    EXPECT_EQ(digits().color(), toQColor(Color::hex6(0x0A0A0A)));
    EXPECT_EQ(label().text(), "FATHOM");
    theme_.switchTo("hacker");
    EXPECT_EQ(digits().color(), toQColor({0, 1, 0.255}));
    EXPECT_EQ(label().text(), "[ TIDEWATCH ]");
}

TEST_F(ContentViewTest, MinimalShowsOnlyItsDigits) {
    theme_.switchTo("minimal");
    show(1);
    EXPECT_TRUE(digits().isVisible());
    EXPECT_FALSE(label().isVisible());
    EXPECT_FALSE(dot().isVisible());
    EXPECT_FALSE(session().isVisible());
    EXPECT_FALSE(stars().isVisible());
}

TEST_F(ContentViewTest, TheDotStandsAtTheSideOfTheDigitsAndFollowsTheStatus) {
    show(1);
    runFor(seconds(1));
    EXPECT_EQ(dot().side(), 6);
    EXPECT_GE(place(dot()).left(), place(digits()).right());
    EXPECT_NEAR(place(dot()).center().y(), place(digits()).center().y(), 1);
    EXPECT_EQ(dot().color(), toQColor(Color::hex6(0x7BD88F)));
    machine_.inputActivity.set(300);
    runFor(seconds(1));
    EXPECT_EQ(dot().color(), toQColor({0.227, 0.227, 0.227}));
}

TEST_F(ContentViewTest, ShowsNoneThreeAndFiveStars) {
    show(1);
    const auto filled = [this] { return stars().names().count("star.fill"); };
    EXPECT_EQ(stars().names().size(), 5);
    EXPECT_EQ(filled(), 0);
    stars_ = 3;
    runFor(seconds(1));
    EXPECT_EQ(filled(), 3);
    stars_ = 5;
    runFor(seconds(1));
    EXPECT_EQ(filled(), 5);
    EXPECT_EQ(stars().side(), 6);
    EXPECT_EQ(stars().spacing(), 3);
    EXPECT_EQ(stars().width(), 5 * 6 + 4 * 3);
}

TEST_F(ContentViewTest, StandsBelowOneAnotherAndKeepsWithinThePaddingInEveryTheme) {
    startAt(Seconds(360'000));
    for (const auto& theme : themes_.themes()) {
        theme_.switchTo(theme.id);
        for (const auto size : allSizeOptions()) {
            const double scale = rawValue(size);
            SCOPED_TRACE(theme.id + " at " + std::to_string(scale));
            show(scale);
            const QRectF inside =
                QRectF(0, 0, theme.size.width * scale, theme.size.height * scale)
                    .adjusted(theme.padding.leading * scale, theme.padding.top * scale,
                              -theme.padding.trailing * scale, -theme.padding.bottom * scale);
            // A pixel for the rounding, and the dot's least size.
            const auto allowed = inside.adjusted(-2, -1.5, 2, 1.5);
            double bottom = 0;
            for (QQuickItem* shown :
                 {static_cast<QQuickItem*>(&label()), static_cast<QQuickItem*>(&digits()),
                  static_cast<QQuickItem*>(&session()), static_cast<QQuickItem*>(&stars())}) {
                if (!shown->isVisible()) continue;
                const auto rectangle = place(*shown);
                EXPECT_TRUE(allowed.contains(rectangle)) << shown->objectName().toStdString();
                EXPECT_GE(rectangle.top(), bottom);
                bottom = rectangle.bottom();
            }
            if (dot().isVisible()) {
                EXPECT_TRUE(allowed.contains(place(dot())));
            }
        }
    }
}

TEST_F(ContentViewTest, AViewOfAnotherShapeKeepsTheDrawingWhole) {
    show(1);
    view_->setSize({440, 124});
    EXPECT_EQ(digits().unit(), 1);
    EXPECT_NEAR(place(label()).center().x(), 220, 1);
    view_->setSize({440, 248});
    EXPECT_EQ(digits().unit(), 2);
}

TEST_F(ContentViewTest, LiquidMovesWhileItIsOnTheScreenAndOnlyInItsTheme) {
    show(1);
    presenter_->setOnScreen(true);
    EXPECT_FALSE(liquid().isMoving());
    theme_.switchTo("liquid");
    QCoreApplication::processEvents();
    EXPECT_TRUE(liquid().isMoving());
    presenter_->setOnScreen(false);
    EXPECT_FALSE(liquid().isMoving());
    presenter_->setOnScreen(true);
    EXPECT_TRUE(liquid().isMoving());
    theme_.switchTo("ochre");
    EXPECT_FALSE(liquid().isMoving());
}

TEST_F(ContentViewTest, WithoutACompositorThePanelIsOpaqueToItsCorners) {
    for (const auto& theme : themes_.themes()) {
        SCOPED_TRACE(theme.id);
        theme_.switchTo(theme.id);
        window_.setColor(Qt::red);
        presenter_->setTranslucent(false);
        show(1);
        EXPECT_NE(picture().pixelColor(0, 0), QColor(Qt::red));
        presenter_->setTranslucent(true);
        EXPECT_EQ(picture().pixelColor(0, 0), QColor(Qt::red));
    }
}

}  // namespace
}  // namespace tidewatch
