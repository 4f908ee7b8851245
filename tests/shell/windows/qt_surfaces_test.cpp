#include "shell/windows/qt_surfaces.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QQmlEngine>
#include <QTest>

#include "core/broadcaster.h"
#include "shell/themes/theme_registry.h"
#include "tests/support/core_fixture.h"
#include "tests/support/fake_world.h"

namespace tidewatch {
namespace {

/// In this test program no view can be created, as where a part of the toolkit is missing.
class QtSurfacesTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        qmlRegisterTypeNotAvailable("Tidewatch.Shell", 1, 0, "ContentView", "no views in this test");
    }

    static QDialog& dialog() { return dynamic_cast<QDialog&>(*QApplication::activeModalWidget()); }

    static void press(const char* words) {
        for (auto* each : dialog().findChildren<QPushButton*>()) {
            if (each->text() != words) continue;
            QTest::mouseClick(each, Qt::LeftButton);
            return;
        }
        FAIL() << "no button " << words;
    }

    void ask(double fieldWidth) {
        surfaces_.dialogs().ask({.title = "Nuevo proyecto",
                                 .text = {"Nombre del proyecto:"},
                                 .accept = "Crear",
                                 .placeholder = "p.ej. LMN Juvenil",
                                 .initial = "",
                                 .fieldWidth = fieldWidth},
                                [this](const std::string& answer) { answers_.push_back(answer); });
    }

    using Answers = std::vector<std::string>;

    test::FakeWorld machine_;
    test::CoreFixture fixture_{machine_};
    Broadcaster broadcaster_;
    ThemeRegistry themes_;
    ThemeController theme_{themes_, fixture_.settings, broadcaster_};
    ClockPresenter clock_{fixture_.engine, theme_, machine_.clock, [] { return 0; }};
    QtSurfaces surfaces_{{.log = machine_.log,
                          .windowSystem = machine_.windowSystem,
                          .desktop = machine_.desktop,
                          .theme = theme_,
                          .clock = clock_,
                          .widgetContent = nullptr}};
    QObject presenter_;
    Answers answers_;
};

TEST_F(QtSurfacesTest, AViewThatCannotBeMadeIsALineInTheLogAndNoView) {
    machine_.log.expectWarning("Tidewatch: failed to make the view NoSuchView: ");
    EXPECT_EQ(surfaces_.makeView("NoSuchView", presenter_), nullptr);
}

TEST_F(QtSurfacesTest, AClockWhoseViewCannotBeMadeIsABlankWindow) {
    machine_.log.expectWarning("Tidewatch: failed to make the view ContentView: ");
    const auto window = surfaces_.makeClockWindow({220, 124});
    window->orderFrontRegardless();
    EXPECT_TRUE(window->isVisible());
    window->resize({110, 62});
    window->orderOut();
}

TEST_F(QtSurfacesTest, AFieldIsAsWideAsAskedHasTheFocusAndGivesWhatIsTyped) {
    for (const double width : {240.0, 280.0}) {
        ask(width);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog()));
        auto* field = dialog().findChild<QLineEdit*>();
        EXPECT_EQ(field->width(), static_cast<int>(width));
        EXPECT_EQ(QApplication::focusWidget(), field);
        QTest::keyClicks(field, "Corto");
        press("Crear");
    }
    EXPECT_EQ(answers_, (Answers{"Corto", "Corto"}));
}

TEST_F(QtSurfacesTest, CancelarAnswersNothing) {
    ask(240);
    press("Cancelar");
    bool agreed = false;
    surfaces_.dialogs().confirm(
        {.title = {"Borrar \"", "Corto", "\""}, .text = {"Esto…"}, .accept = "Borrar"},
        [&] { agreed = true; });
    press("Cancelar");
    EXPECT_EQ(answers_, Answers{});
    EXPECT_FALSE(agreed);
    surfaces_.dialogs().confirm(
        {.title = {"Borrar \"", "Corto", "\""}, .text = {"Esto…"}, .accept = "Borrar"},
        [&] { agreed = true; });
    press("Borrar");
    EXPECT_TRUE(agreed);
}

}  // namespace
}  // namespace tidewatch
