#include "wellbeing/views/break_presenter.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <array>

#include "wellbeing/views/break_scene.h"

namespace tidewatch {
namespace {

using BreakPresenterTest = testing::Test;

struct Shown {
    const char* icon;
    const char* title;
    const char* instruction;
    const char* motivational;
};

/// What the alerts of a day propose, one after the other.
constexpr std::array exercises{
    Shown{"figure.mind.and.body", "Cuello",
          "Gira la cabeza 10 veces a cada lado, despacio. Luego inclínala hacia los hombros 10 veces.",
          "Tu cuello te va a dar gracias en 10 años."},
    Shown{"figure.arms.open", "Hombros",
          "Rota los hombros hacia atrás 15 veces. Estira los brazos hacia arriba 30 segundos.",
          "Estirar 1 minuto te ahorra 1 hora de masaje."},
    Shown{"figure.flexibility", "Espalda",
          "Levántate. Estira los brazos al techo, inclina el torso a izquierda y derecha 5 veces cada lado.",
          "Una espalda fuerte hace un cerebro fuerte."},
    Shown{"eye", "Vista",
          "Mira a 6 metros de distancia 20 segundos. Cierra los ojos fuerte 5 veces. Hidrátalos parpadeando.",
          "Los ojos también necesitan descanso."},
    Shown{"hand.raised.fingers.spread", "Muñecas",
          "Estira los dedos hacia atrás 20 segundos. Rota las muñecas en círculo 10 veces cada dirección.",
          "Tus manos son tu herramienta — cuídalas."},
    Shown{"figure.cooldown", "Caderas",
          "Camina 2 minutos. Haz 10 sentadillas sin peso. Estira el cuádriceps 30 segundos cada lado.",
          "Sentado mucho = caderas tensas mañana."},
    Shown{"figure.walk", "Cuerpo completo",
          "Levántate y camina 3 minutos. Bebe agua. Mira por la ventana al horizonte 30 segundos.",
          "El movimiento es vida. 3 minutos cambian todo."},
    Shown{"figure.mind.and.body", "Cuello",
          "Gira la cabeza 10 veces a cada lado, despacio. Luego inclínala hacia los hombros 10 veces.",
          "Tu cuello te va a dar gracias en 10 años."},
};

TEST_F(BreakPresenterTest, IsInactiveWithoutAnAlert) {
    BreakWorld world;
    EXPECT_FALSE(world.presenter_.alertActive());
    EXPECT_EQ(world.presenter_.sittingText(), "0m 00s sentado continuo");
    EXPECT_EQ(world.presenter_.dismissText(), "Listo · ya me paré");
}

TEST_F(BreakPresenterTest, TwoHoursOfSitting) {
    BreakWorld world;
    world.sitUntilAlert();
    EXPECT_TRUE(world.presenter_.alertActive());
    EXPECT_EQ(world.presenter_.headline(), "2 HORAS SENTADO");
    EXPECT_EQ(world.presenter_.subline(), "Tu cuerpo te pide un descanso. 3 minutos cambian el día.");
    EXPECT_EQ(world.presenter_.sittingText(), "2h 00m sentado continuo");
}

TEST_F(BreakPresenterTest, AnHourOfSittingOnALongDay) {
    BreakWorld world;
    world.sitUntilAlert(9);
    EXPECT_EQ(world.presenter_.headline(), "9 HORAS HOY");
    EXPECT_EQ(world.presenter_.subline(), "Jornada larga — cada hora vale parar 60 segundos.");
    EXPECT_EQ(world.presenter_.sittingText(), "1h 00m sentado continuo");
}

TEST_F(BreakPresenterTest, ProposesEveryExerciseInItsTurn) {
    BreakWorld world;
    for (const auto& exercise : exercises) {
        SCOPED_TRACE(exercise.title);
        world.sitUntilAlert(8);
        EXPECT_EQ(world.presenter_.icon(), exercise.icon);
        EXPECT_EQ(world.presenter_.title(), exercise.title);
        EXPECT_EQ(world.presenter_.instruction(), exercise.instruction);
        EXPECT_EQ(world.presenter_.motivational(), exercise.motivational);
        world.presenter_.dismiss();
    }
}

TEST_F(BreakPresenterTest, DismissingEndsTheAlertAndTheSitting) {
    BreakWorld world;
    world.sitUntilAlert();
    world.presenter_.dismiss();
    EXPECT_FALSE(world.presenter_.alertActive());
    EXPECT_FALSE(world.reminder_.alertActive());
    EXPECT_EQ(world.presenter_.sittingText(), "0m 00s sentado continuo");
}

TEST_F(BreakPresenterTest, AnActiveAlertIsShown) {
    BreakWorld world;
    world.sitUntilAlert(11);
    const BreakPresenter late(world.reminder_);
    EXPECT_TRUE(late.alertActive());
    EXPECT_EQ(late.headline(), "11 HORAS HOY");
}

TEST_F(BreakPresenterTest, AnOrdinarySecondAnnouncesTheSittingAlone) {
    BreakWorld world;
    world.sit(Seconds(10));
    QSignalSpy active(&world.presenter_, &BreakPresenter::alertActiveChanged);
    QSignalSpy alert(&world.presenter_, &BreakPresenter::alertChanged);
    QSignalSpy sitting(&world.presenter_, &BreakPresenter::sittingTextChanged);
    world.sit(Seconds(1));
    EXPECT_EQ(sitting.count(), 1);
    EXPECT_EQ(active.count() + alert.count(), 0);
}

TEST_F(BreakPresenterTest, FromAnHourOnTheSittingIsAnnouncedOnceAMinute) {
    BreakWorld world;
    world.sit(Seconds(3600));
    QSignalSpy sitting(&world.presenter_, &BreakPresenter::sittingTextChanged);
    world.sit(Seconds(59));
    EXPECT_EQ(sitting.count(), 0);
    world.sit(Seconds(1));
    EXPECT_EQ(sitting.count(), 1);
}

TEST_F(BreakPresenterTest, TheTextsAreThereWhenTheAlertIsAnnounced) {
    BreakWorld world;
    QString headline;
    QObject::connect(&world.presenter_, &BreakPresenter::alertActiveChanged, &world.presenter_,
                     [&] { headline = world.presenter_.headline(); });
    world.sitUntilAlert(10);
    EXPECT_EQ(headline, "10 HORAS HOY");
}

}  // namespace
}  // namespace tidewatch
