#include <QSignalSpy>
#include <QtTest/QTest>

#include "shell/views/widgets/gadgets_scene.h"
#include "ui/style/contrast.h"
#include "ui/style/style.h"
#include "ui/view_test.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

constexpr auto plain = "Rectangle { anchors.fill: parent; color: \"white\" }";

using GadgetViewTest = ViewTest<GadgetsScene>;

TEST_F(GadgetViewTest, TheGroundIsRoundedAndTranslucent) {
    showWidget(WidgetKind::project);
    auto& ground = the("ground");
    EXPECT_EQ(ground.property("radius").toDouble(), 20);
    auto color = ground.property("color").value<QColor>();
    EXPECT_NEAR(color.alphaF(), 0.88, 0.003);
    color.setAlphaF(1);
    EXPECT_EQ(color, Style::of(engine_)->palette().bg);
}

TEST_F(GadgetViewTest, WithoutACompositorTheGroundIsOpaque) {
    showWidget(WidgetKind::project);
    gadget(WidgetKind::project).setTranslucent(false);
    EXPECT_EQ(the("ground").property("color").value<QColor>(), Style::of(engine_)->palette().bg);
}

TEST_F(GadgetViewTest, NothingIsCutOffAtAnyScale) {
    useLongestTexts();
    completeSpeedTest();
    const QStringList names{"Libro de cocina con un nombre bastante largo para una tarjeta",
                            "Programa de manipulación de imágenes de GNU", "Visual Studio Code"};
    for (const double scale : {0.5, 1.0, 2.0}) {
        for (const auto kind : allWidgetKinds()) {
            SCOPED_TRACE(testing::Message() << rawValue(kind) << " at " << scale);
            showWidget(kind, scale);
            processEvents();
            expectNothingCutOff(window_.width(), names);
        }
    }
}

TEST_F(GadgetViewTest, WithNothingToShowNothingIsCutOffEither) {
    for (const double scale : {0.5, 1.0, 2.0}) {
        for (const auto kind : allWidgetKinds()) {
            SCOPED_TRACE(testing::Message() << rawValue(kind) << " at " << scale);
            showWidget(kind, scale);
            processEvents();
            expectNothingCutOff(window_.width());
        }
    }
}

TEST_F(GadgetViewTest, TextIsLegibleOnEveryWallpaper) {
    useBelievableDay();
    for (const auto& theme : themes_.themes()) {
        theme_.switchTo(theme.id);
        for (const auto kind : allWidgetKinds()) {
            if (kind == WidgetKind::arcade) continue;
            SCOPED_TRACE(testing::Message() << theme.id << " " << rawValue(kind));
            showWidget(kind);
            const auto& palette = Style::of(engine_)->palette();
            for (auto* text : view_->findChildren<QQuickItem*>()) {
                // What is on a button has its own ground.
                if (!text->inherits("QQuickText") || text->parentItem()->inherits("QQuickRow")) continue;
                const auto words = text->property("text").toString();
                auto color = text->property("color").value<QColor>();
                for (const auto& wallpaper : {QColor(Qt::black), QColor(Qt::white)}) {
                    const auto ground = blendedOver(palette.widget, wallpaper);
                    EXPECT_GE(contrast(blendedOver(color, ground), ground), minContrast) << qPrintable(words);
                }
            }
        }
    }
}

TEST_F(GadgetViewTest, ScreenReadersHearEveryFigure) {
    useBelievableDay();
    completeSpeedTest();
    useMachine();
    showAll(plain);
    const auto names = accessibleNames();
    for (const auto kind : allWidgetKinds()) {
        EXPECT_TRUE(names.contains(gadget(kind).accessibleName())) << rawValue(kind);
    }
    for (const char* name : {"Productividad: 96%", "CPU: 37%", "RAM: 9.0 GB", "Disco: 118 GB libre",
                             "Wi-Fi: descarga 4.8 MB/s, subida 391 KB/s", "sesión más larga sin parar: 3h 4m",
                             "4 de 5 estrellas", "Sitio web: 1h 56m hoy", "Probar"}) {
        EXPECT_TRUE(names.contains(name)) << name << "\n" << names.join('\n').toStdString();
    }
}

TEST_F(GadgetViewTest, AMinuteWithoutAChangePaintsNothing) {
    useBelievableDay();
    showAll(plain);
    processEvents();
    QTest::qWait(50);
    const QSignalSpy frames(&window_, &QQuickWindow::frameSwapped);
    hub().start();
    machine_.mainLoop.runFor(60s);
    QTest::qWait(50);
    EXPECT_EQ(frames.count(), 0);
    book("code", today(), 16, 30, 60);
    machine_.mainLoop.runFor(1s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return frames.count() > 0; }, 60'000));
}

TEST_F(GadgetViewTest, TheButtonStartsASpeedTest) {
    showWidget(WidgetKind::speed);
    EXPECT_EQ(textOf("speedButton"), "Probar");
    click(the("speedButton"));
    EXPECT_EQ(hub().speed().phase(), SpeedTester::Phase::downloading);
    EXPECT_EQ(textOf("speedButton"), "Detener");
}

// What takes a press is neither dragged nor a click on the widget.

TEST_F(GadgetViewTest, APressOnAControlIsTakenAndOneBesideItIsNot) {
    showWidget(WidgetKind::speed);
    const auto pressed = [this](QPointF place) {
        QTest::mousePress(&window_, Qt::LeftButton, {}, place.toPoint());
        const bool taken = window_.mouseGrabberItem() != nullptr;
        QTest::mouseRelease(&window_, Qt::LeftButton, {}, place.toPoint());
        return taken;
    };
    EXPECT_TRUE(pressed(placeOf(the("speedButton")).center()));
    EXPECT_FALSE(pressed(placeOf(the("gauge")).center()));
    EXPECT_FALSE(pressed({4, 100}));
}

TEST_F(GadgetViewTest, ThePaddleIsDraggedAtEveryScale) {
    auto& games = *dynamic_cast<ArcadeGadgetPresenter&>(appear(WidgetKind::arcade)).games();
    games.switchGame();
    games.play();
    for (const double scale : {0.5, 1.0, 2.0}) {
        SCOPED_TRACE(scale);
        showWidget(WidgetKind::arcade, scale);
        processEvents();
        auto& field = the("breakoutField");
        const auto place = field.mapToScene({100 * scale, 200 * scale}).toPoint();
        QTest::mousePress(&window_, Qt::LeftButton, {}, place);
        EXPECT_EQ(window_.mouseGrabberItem(), &field);
        EXPECT_NEAR(games.breakout()->model().paddleX(), 100, 1.5 / scale);
        QTest::mouseMove(&window_, place - QPoint(static_cast<int>(40 * scale), 0));
        EXPECT_NEAR(games.breakout()->model().paddleX(), 60, 1.5 / scale);
        QTest::mouseRelease(&window_, Qt::LeftButton, {}, place);
    }
}

TEST_F(GadgetViewTest, TheArcadeFitsItsWidgetInEveryFaceAtEveryScale) {
    auto& games = *dynamic_cast<ArcadeGadgetPresenter&>(appear(WidgetKind::arcade)).games();
    const auto expectFits = [this] {
        for (const double scale : {0.5, 1.0, 2.0}) {
            SCOPED_TRACE(scale);
            showWidget(WidgetKind::arcade, scale);
            processEvents();
            EXPECT_LE(placeOf(the("controls")).bottom(), window_.height() - 11 * scale);
            EXPECT_LE(placeOf(the("gate")).bottom(), window_.height());
            expectNothingCutOff(window_.width());
        }
    };
    expectFits();
    games.play();
    expectFits();
    games.leave();
    games.switchGame();
    expectFits();
}

}  // namespace
}  // namespace tidewatch
