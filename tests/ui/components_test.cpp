#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest/QTest>
#include <cmath>

#include "platform/fake/fake_clock.h"
#include "ui/backgrounds/liquid_background.h"
#include "ui/backgrounds/wall_clock.h"
#include "ui/symbols/app_icon_view.h"
#include "ui/ui_scene.h"

namespace tidewatch {
namespace {

struct ComponentsTest : testing::Test, UiScene {
    ComponentsTest() { QAccessible::setActive(true); }

    ~ComponentsTest() override {
        EXPECT_TRUE(viewWarnings_.isEmpty()) << viewWarnings_.join("\n").toStdString();
    }

    [[nodiscard]] QQuickItem& the(const char* name) const {
        auto* found = item(name);
        if (found == nullptr) qFatal("no item \"%s\"", name);
        return *found;
    }

    [[nodiscard]] int count(const char* property) const { return seen(property).toInt(); }

    /// The ring around `control` is shown.
    [[nodiscard]] static bool showsRing(const QQuickItem& control) {
        for (const auto* child : control.findChildren<QQuickItem*>()) {
            if (QString(child->metaObject()->className()).startsWith("FocusRing") && child->isVisible())
                return true;
        }
        return false;
    }
};

QAccessibleInterface& accessible(QQuickItem& item) {
    auto* found = QAccessible::queryAccessibleInterface(&item);
    if (found == nullptr) qFatal("not accessible");
    return *found;
}

QString nameOf(QQuickItem& item) {
    return accessible(item).text(QAccessible::Name);
}

void act(QQuickItem& item, const QString& action) {
    accessible(item).actionInterface()->doAction(action);
}

TEST_F(ComponentsTest, ACardIsAsLargeAsItsChildAndItsPadding) {
    show("Card { Rectangle { implicitWidth: 100; implicitHeight: 50 } }");
    EXPECT_EQ(view_->implicitWidth(), 140);
    EXPECT_EQ(view_->implicitHeight(), 90);
}

TEST_F(ComponentsTest, AChildCanFillItsCard) {
    show("Card { width: 200; height: 100; Item { objectName: 'child'; anchors.fill: parent } }");
    EXPECT_EQ(placeOf(the("child")), QRectF(20, 20, 160, 60));
}

TEST_F(ComponentsTest, ACardIsAccessibleOnlyWithATextAndInItsRole) {
    show("Item { Accessible.role: Accessible.Pane; Card { Heading { text: 'Metas' } } }");
    EXPECT_EQ(accessible(*view_).child(0)->role(), QAccessible::Heading);
    show(R"(Item {
        Accessible.role: Accessible.Pane
        Card { accessibleText: "9:00am, 19m"; accessibleRole: Accessible.ListItem; Heading { text: "Metas" } }
    })");
    ASSERT_EQ(accessible(*view_).childCount(), 1);
    auto* card = accessible(*view_).child(0);
    EXPECT_EQ(card->role(), QAccessible::ListItem);
    EXPECT_EQ(card->text(QAccessible::Name), "9:00am, 19m");
    EXPECT_EQ(card->child(0)->role(), QAccessible::Heading);
}

TEST_F(ComponentsTest, HiddenAndEmptyTextsAreNotAccessible) {
    show(R"(Column {
        Accessible.role: Accessible.Pane
        AccessibleText { text: "uno" }
        AccessibleText { text: "dos"; visible: false }
        AccessibleText {}
    })");
    ASSERT_EQ(accessible(*view_).childCount(), 1);
    EXPECT_EQ(accessible(*view_).child(0)->role(), QAccessible::StaticText);
    EXPECT_EQ(accessible(*view_).child(0)->text(QAccessible::Name), "uno");
}

TEST_F(ComponentsTest, AHeadingIsAHeadingInItsOwnWords) {
    show("Heading { text: 'Fijar metas' }");
    EXPECT_EQ(accessible(*view_).role(), QAccessible::Heading);
    EXPECT_EQ(nameOf(*view_), "Fijar metas");
}

TEST_F(ComponentsTest, AMeterIsFilledWithinItsEnds) {
    show("Meter { width: 200 }");
    const auto fillAt = [this](double fraction) {
        view_->setProperty("fraction", fraction);
        return the("fill").isVisible() ? the("fill").width() : 0;
    };
    EXPECT_EQ(fillAt(0), 0);
    EXPECT_EQ(fillAt(-1), 0);
    EXPECT_EQ(fillAt(0.001), 6) << "the least that can be seen";
    EXPECT_EQ(fillAt(0.5), 100);
    EXPECT_EQ(fillAt(1), 200);
    EXPECT_EQ(fillAt(7), 200);
}

TEST_F(ComponentsTest, AMeterWithANameReportsItsValue) {
    show("Meter { fraction: 0.25; accessibleName: 'Horas por día'; valueText: '2.0h / 8.0h' }");
    auto& meter = accessible(*view_);
    EXPECT_EQ(meter.role(), QAccessible::ProgressBar);
    EXPECT_EQ(nameOf(*view_), "Horas por día");
    EXPECT_EQ(meter.text(QAccessible::Description), "2.0h / 8.0h");
}

constexpr auto oneIconButton = R"(
IconButton {
    property int clicks: 0
    symbol: "chevron.left"; accessibleName: "Día anterior"
    onClicked: ++clicks
})";

TEST_F(ComponentsTest, AnIconButtonTakesTheMouseTheKeysAndAssistiveTechnology) {
    show(oneIconButton);
    click(*view_);
    EXPECT_EQ(count("clicks"), 1);
    press(Qt::Key_Space);
    press(Qt::Key_Return);
    press(Qt::Key_Enter);
    EXPECT_EQ(count("clicks"), 4);
    EXPECT_EQ(accessible(*view_).role(), QAccessible::Button);
    EXPECT_EQ(nameOf(*view_), "Día anterior");
    act(*view_, QAccessibleActionInterface::pressAction());
    EXPECT_EQ(count("clicks"), 5);
}

TEST_F(ComponentsTest, ADisabledButtonIsReportedAsDisabled) {
    show(oneIconButton);
    EXPECT_EQ(accessible(*view_).text(QAccessible::Description), "");
    view_->setEnabled(false);
    EXPECT_EQ(accessible(*view_).text(QAccessible::Description), "no disponible");
}

TEST_F(ComponentsTest, ADisabledButtonDoesNothing) {
    show(oneIconButton);
    view_->setEnabled(false);
    click(*view_);
    press(Qt::Key_Return);
    EXPECT_EQ(count("clicks"), 0);
}

TEST_F(ComponentsTest, OnlyTheKeyboardShowsTheRing) {
    show(
        "Row { spacing: 9; IconButton { objectName: 'one'; symbol: 'plus'; accessibleName: '1' }"
        " TextButton { objectName: 'two'; text: '2' } LinkButton { objectName: 'three'; text: '3' } }");
    click(the("one"));
    EXPECT_TRUE(the("one").hasActiveFocus());
    EXPECT_FALSE(showsRing(the("one")));
    press(Qt::Key_Tab);
    EXPECT_TRUE(the("two").hasActiveFocus());
    EXPECT_TRUE(showsRing(the("two")));
    press(Qt::Key_Tab);
    EXPECT_FALSE(showsRing(the("two")));
    EXPECT_TRUE(showsRing(the("three")));
}

TEST_F(ComponentsTest, AWiderTextButtonKeepsItsWordsInTheMiddle) {
    show("TextButton { text: 'Exportar'; symbol: 'doc.richtext' }");
    const auto middleOfWords = [this] {
        const auto* row = qvariant_cast<QQuickItem*>(seen("contentItem"));
        const double left = placeOf(*row).left();
        return left + row->implicitWidth() / 2;
    };
    EXPECT_NEAR(middleOfWords(), view_->implicitWidth() / 2, 1);
    view_->setWidth(400);
    EXPECT_NEAR(middleOfWords(), 200, 1);
    EXPECT_EQ(nameOf(*view_), "Exportar");
}

TEST_F(ComponentsTest, AChipTogglesByMouseAndKeys) {
    show("Chip { property int toggles: 0; text: 'Neutral'; checked: true; onToggled: ++toggles }");
    EXPECT_EQ(accessible(*view_).role(), QAccessible::CheckBox);
    EXPECT_TRUE(accessible(*view_).state().checked);
    click(*view_);
    EXPECT_FALSE(seen("checked").toBool());
    EXPECT_FALSE(accessible(*view_).state().checked);
    press(Qt::Key_Space);
    EXPECT_TRUE(seen("checked").toBool());
    press(Qt::Key_Return);
    EXPECT_FALSE(seen("checked").toBool());
    EXPECT_EQ(count("toggles"), 3);
}

TEST_F(ComponentsTest, AChipTogglesForAssistiveTechnology) {
    show("Chip { property int toggles: 0; text: 'Neutral'; onToggled: ++toggles }");
    act(*view_, QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(seen("checked").toBool());
    EXPECT_EQ(count("toggles"), 1);
}

constexpr auto ranges = R"(
Column {
    property int chosen: 1
    property int asked: -1
    property alias segments: picker
    SegmentedPicker {
        id: picker
        objectName: "picker"
        labels: ["Semana", "Mes", "Todo"]
        currentIndex: parent.chosen
        accessibleName: "Rango"
        onActivated: index => { parent.asked = index; parent.chosen = index; }
    }
    TextButton { objectName: "after"; text: "Después" }
})";

TEST_F(ComponentsTest, ThePickerIsOneTabStopAndArrowsChoose) {
    show(ranges);
    press(Qt::Key_Tab);
    EXPECT_EQ(window_.activeFocusItem()->property("text").toString(), "Mes");
    press(Qt::Key_Right);
    EXPECT_EQ(count("chosen"), 2);
    EXPECT_EQ(window_.activeFocusItem()->property("text").toString(), "Todo");
    EXPECT_TRUE(showsRing(*window_.activeFocusItem()));
    press(Qt::Key_Right);
    EXPECT_EQ(count("chosen"), 2) << "there is no further one";
    press(Qt::Key_Left);
    press(Qt::Key_Up);
    EXPECT_EQ(count("chosen"), 0);
    press(Qt::Key_Down);
    EXPECT_EQ(count("chosen"), 1);
    press(Qt::Key_Tab);
    EXPECT_TRUE(the("after").hasActiveFocus());
    press(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(window_.activeFocusItem()->property("text").toString(), "Mes");
}

TEST_F(ComponentsTest, ThePickerTakesClicksAndAsksOnlyForWhatIsNotChosen) {
    show(ranges);
    auto& picker = the("picker");
    click(picker, {picker.width() / 2, picker.height() / 2});
    EXPECT_EQ(count("asked"), -1);
    click(picker, {20, picker.height() / 2});
    EXPECT_EQ(count("asked"), 0);
}

TEST_F(ComponentsTest, ThePickerIsAGroupOfRadioButtons) {
    show(ranges);
    auto& group = accessible(the("picker"));
    EXPECT_EQ(group.text(QAccessible::Name), "Rango");
    ASSERT_EQ(group.childCount(), 3);
    EXPECT_EQ(group.child(1)->role(), QAccessible::RadioButton);
    EXPECT_EQ(group.child(1)->text(QAccessible::Name), "Mes");
    EXPECT_TRUE(group.child(1)->state().checked);
    EXPECT_FALSE(group.child(2)->state().checked);
    group.child(2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(count("chosen"), 2);
}

constexpr auto stepper = R"(
StepperButtons {
    accessibleName: "Horas por día"; valueText: value + "h"; maximumValue: 3
    canDecrease: value > 0; canIncrease: value < 3
    onDecrease: --value
    onIncrease: ++value
})";

TEST_F(ComponentsTest, TheStepperTakesArrowsAndSigns) {
    show(stepper);
    press(Qt::Key_Tab);
    EXPECT_TRUE(view_->hasActiveFocus());
    EXPECT_TRUE(showsRing(*view_));
    press(Qt::Key_Up);
    press(Qt::Key_Right);
    press(Qt::Key_Plus);
    press(Qt::Key_Plus);
    EXPECT_EQ(count("value"), 3) << "not beyond what it can";
    press(Qt::Key_Down);
    press(Qt::Key_Left);
    press(Qt::Key_Minus);
    press(Qt::Key_Minus);
    EXPECT_EQ(count("value"), 0);
}

TEST_F(ComponentsTest, TheStepperTakesClicksOnItsTwoButtons) {
    show(stepper);
    click(the("increase"));
    click(the("increase"));
    click(the("decrease"));
    EXPECT_EQ(count("value"), 1);
    click(the("decrease"));
    EXPECT_FALSE(the("decrease").isEnabled());
    click(the("decrease"));
    EXPECT_EQ(count("value"), 0);
}

TEST_F(ComponentsTest, TheStepperReportsItsValueAndStepsForAssistiveTechnology) {
    show(stepper);
    EXPECT_EQ(accessible(*view_).role(), QAccessible::SpinBox);
    EXPECT_EQ(nameOf(*view_), "Horas por día");
    act(*view_, QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(accessible(*view_).text(QAccessible::Description), "1h");
    act(*view_, QAccessibleActionInterface::decreaseAction());
    EXPECT_EQ(accessible(*view_).text(QAccessible::Description), "0h");
    ASSERT_NE(accessible(*view_).valueInterface(), nullptr);
    EXPECT_EQ(accessible(*view_).valueInterface()->currentValue().toDouble(), 0);
    EXPECT_EQ(accessible(*view_).valueInterface()->maximumValue().toDouble(), 3);
}

constexpr auto oneSwitch = R"(
LabeledSwitch {
    property int toggles: 0
    width: 300
    text: "Notificaciones de metas"
    onToggled: checked => { ++toggles; this.checked = checked; }
})";

TEST_F(ComponentsTest, TheSwitchTogglesByMouseAnywhereAndByKeys) {
    show(oneSwitch);
    click(*view_, {5, 15});
    EXPECT_TRUE(seen("checked").toBool());
    press(Qt::Key_Space);
    EXPECT_FALSE(seen("checked").toBool());
    press(Qt::Key_Return);
    EXPECT_TRUE(seen("checked").toBool());
    EXPECT_EQ(count("toggles"), 3);
}

TEST_F(ComponentsTest, TheSwitchShowsWhatItsOwnerSaysOnly) {
    show("LabeledSwitch { text: 'Fijo'; checked: false }");
    click(*view_);
    EXPECT_FALSE(seen("checked").toBool());
    auto& control = accessible(*window_.activeFocusItem());
    EXPECT_EQ(control.role(), QAccessible::CheckBox);
    EXPECT_EQ(control.text(QAccessible::Name), "Fijo");
    EXPECT_FALSE(control.state().checked);
}

TEST_F(ComponentsTest, TheSwitchTogglesForAssistiveTechnology) {
    show(oneSwitch);
    press(Qt::Key_Tab);
    act(*window_.activeFocusItem(), QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(seen("checked").toBool());
    EXPECT_EQ(count("toggles"), 1);
    EXPECT_TRUE(accessible(*window_.activeFocusItem()).state().checked);
}

constexpr auto search = R"(
Item {
    property string searched: "?"
    property int escapes: 0
    Keys.onEscapePressed: ++escapes
    SearchField {
        objectName: "field"
        placeholder: "buscar"
        onEdited: text => parent.searched = text
    }
})";

TEST_F(ComponentsTest, TheSearchFieldReportsEdits) {
    show(search);
    press(Qt::Key_Tab);
    press(Qt::Key_A);
    press(Qt::Key_B);
    EXPECT_EQ(seen("searched").toString(), "ab");
    EXPECT_EQ(accessible(the("field")).role(), QAccessible::EditableText);
    EXPECT_EQ(nameOf(the("field")), "buscar");
}

TEST_F(ComponentsTest, EscapeEmptiesTheSearchFieldFirst) {
    show(search);
    press(Qt::Key_Tab);
    press(Qt::Key_A);
    press(Qt::Key_Escape);
    EXPECT_EQ(the("field").property("text").toString(), "");
    EXPECT_EQ(seen("searched").toString(), "");
    EXPECT_EQ(count("escapes"), 0);
    press(Qt::Key_Escape);
    EXPECT_EQ(count("escapes"), 1);
}

TEST_F(ComponentsTest, TheButtonInTheSearchFieldEmptiesItAndGivesTheFocusBack) {
    show(search);
    EXPECT_FALSE(the("clear").isVisible());
    click(the("field"));
    press(Qt::Key_A);
    ASSERT_TRUE(the("clear").isVisible());
    EXPECT_EQ(nameOf(the("clear")), "Borrar búsqueda");
    click(the("clear"));
    EXPECT_EQ(seen("searched").toString(), "");
    EXPECT_TRUE(the("field").hasActiveFocus());
    EXPECT_FALSE(the("clear").isVisible());
}

TEST_F(ComponentsTest, TheSearchFieldFollowsItsOwner) {
    show(
        "Item { property string wanted: ''; SearchField { objectName: 'field'; text: parent.wanted"
        "; onEdited: text => parent.wanted = text } }");
    click(the("field"));
    press(Qt::Key_A);
    EXPECT_EQ(seen("wanted").toString(), "a");
    view_->setProperty("wanted", "editor");
    EXPECT_EQ(the("field").property("text").toString(), "editor");
}

TEST_F(ComponentsTest, ASymbolTurnsAroundItsMiddle) {
    show("Symbol { name: 'chevron.left'; side: 40; width: 60; height: 60; color: 'black' }");
    const auto upright = picture().copy(0, 0, 60, 60);
    const auto mirrored = upright.mirrored(true, true);
    view_->setProperty("turn", 180);
    const auto turned = picture().copy(0, 0, 60, 60);
    int different = 0;
    for (int y = 0; y < 60; ++y) {
        for (int x = 0; x < 60; ++x) {
            // The edges may be smoothed differently.
            if (std::abs(qGray(turned.pixel(x, y)) - qGray(mirrored.pixel(x, y))) > 64) ++different;
        }
    }
    EXPECT_EQ(different, 0);
    EXPECT_NE(turned, upright);
}

TEST_F(ComponentsTest, TheRingOfTheFilledPartStartsAtTwelveAndGoesClockwise) {
    show("DonutRing { width: 100; height: 100; thickness: 10; color: '#ff0000'; track: '#0000ff' }");
    const auto at = [this](double fraction, int x, int y) {
        view_->setProperty("fraction", fraction);
        return picture().pixelColor(x, y);
    };
    const QColor red(Qt::red);
    const QColor blue(Qt::blue);
    EXPECT_EQ(at(-1, 95, 50), blue);
    EXPECT_EQ(at(-1, 50, 5), blue);
    EXPECT_EQ(at(0, 50, 5), blue);
    EXPECT_EQ(at(0.5, 95, 50), red);
    EXPECT_EQ(at(0.5, 5, 50), blue);
    EXPECT_EQ(at(0.75, 50, 95), red);
    EXPECT_EQ(at(1, 5, 50), red);
    EXPECT_EQ(at(3, 5, 50), red);
    EXPECT_NE(at(1, 50, 50), red) << "hollow";
}

TEST_F(ComponentsTest, AnIconComesFromItsFile) {
    const QTemporaryDir folder;
    const auto path = folder.filePath("icon.png");
    QImage icon(32, 32, QImage::Format_RGB32);
    icon.fill(Qt::red);
    ASSERT_TRUE(icon.save(path));
    show("AppIconView { side: 24; color: 'blue' }");
    auto& shown = *qobject_cast<AppIconView*>(view_.get());
    EXPECT_FALSE(shown.showsIcon());
    const auto symbol = picture();
    shown.setIconName(path);
    EXPECT_TRUE(shown.showsIcon());
    EXPECT_EQ(picture().pixelColor(12, 12), QColor(Qt::red));
    shown.setSymbolName("gamecontroller.fill");
    EXPECT_FALSE(shown.showsIcon()) << "a symbol comes first";
    shown.setSymbolName("");
    shown.setIconName("");
    EXPECT_EQ(picture(), symbol);
}

TEST_F(ComponentsTest, AnIconMayBeAVectorDrawing) {
    const QTemporaryDir folder;
    QFile file(folder.filePath("icon.svg"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16">
                  <rect width="16" height="16" fill="#00ff00"/></svg>)");
    file.close();
    show("AppIconView { side: 48 }");
    view_->setProperty("iconName", file.fileName());
    EXPECT_EQ(picture().pixelColor(2, 2), QColor(0, 255, 0));
    EXPECT_EQ(picture().pixelColor(45, 45), QColor(0, 255, 0));
}

TEST_F(ComponentsTest, AnIconThatIsNoPictureButAPipeBlocksNobody) {
    const QTemporaryDir folder;
    const auto pipe = folder.filePath("icon.png");
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    show("AppIconView { side: 24 }");
    auto& shown = *qobject_cast<AppIconView*>(view_.get());
    for (const auto& name :
         {pipe, "file://" + pipe, "../../../../../../.." + pipe, "../../../../../../.." + pipe.chopped(4)}) {
        shown.setIconName(name);
        EXPECT_FALSE(shown.showsIcon()) << name.toStdString();
    }
}

TEST_F(ComponentsTest, AnIconThatIsNotThereIsTheSymbolOfAnApplication) {
    show("AppIconView { side: 24; color: 'blue' }");
    auto& shown = *qobject_cast<AppIconView*>(view_.get());
    const auto symbol = picture();
    for (const QString name : {"no-such-icon", "/no/such/icon.png", "..", "/"}) {
        shown.setIconName(name);
        EXPECT_FALSE(shown.showsIcon()) << name.toStdString();
        EXPECT_EQ(picture(), symbol);
    }
}

TEST_F(ComponentsTest, TheDashboardHasTheThemesDecoration) {
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

TEST_F(ComponentsTest, TheLiquidBehindTheDashboardHasItsSpecifiedIntensity) {
    theme_.switchTo("liquid");
    show("DashboardBackground { width: 200; height: 100 }");
    for (const QQuickItem* shown = item("liquid"); shown != nullptr; shown = shown->parentItem()) {
        EXPECT_EQ(shown->opacity(), 1);
    }
    EXPECT_EQ(item("liquid")->property("intensity").toReal(), 0.45);
}

TEST_F(ComponentsTest, ADisabledControlIsReportedAndCannotBePressedThroughTheAccessibilityBus) {
    show(R"(Item {
        property int told: 0
        Column {
            IconButton { objectName: "icon"; symbol: "plus"; accessibleName: "Más"; enabled: false; onClicked: ++told }
            LinkButton { objectName: "link"; text: "hoy"; enabled: false; onClicked: ++told }
            TextButton { objectName: "words"; text: "Generar"; enabled: false; onClicked: ++told }
            Chip { objectName: "chip"; text: "Neutral"; enabled: false; onToggled: ++told }
        }
    })");
    for (const auto* name : {"icon", "link", "words", "chip"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(accessible(the(name)).text(QAccessible::Description), "no disponible");
        act(the(name), QAccessibleActionInterface::pressAction());
        the(name).setEnabled(true);
        EXPECT_EQ(accessible(the(name)).text(QAccessible::Description), "");
    }
    EXPECT_EQ(count("told"), 0);
    for (const auto* name : {"icon", "link", "words", "chip"})
        act(the(name), QAccessibleActionInterface::pressAction());
    EXPECT_EQ(count("told"), 4);
}

TEST_F(ComponentsTest, TheBackgroundIsAnimatedOnlyInItsThemeAndWhileVisible) {
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
