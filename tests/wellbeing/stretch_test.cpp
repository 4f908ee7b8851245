#include "wellbeing/stretch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>

namespace tidewatch {
namespace {

TEST(Stretch, AllAreInRotationOrder) {
    EXPECT_THAT(allStretches(),
                testing::ElementsAre(Stretch::neck, Stretch::shoulders, Stretch::back, Stretch::eyes,
                                     Stretch::wrists, Stretch::hips, Stretch::fullBody));
}

TEST(Stretch, EachReadsItsOwnRow) {
    EXPECT_EQ(textsOf(Stretch::neck).title, "Cuello");
    EXPECT_EQ(textsOf(Stretch::shoulders).title, "Hombros");
    EXPECT_EQ(textsOf(Stretch::back).title, "Espalda");
    EXPECT_EQ(textsOf(Stretch::eyes).title, "Vista");
    EXPECT_EQ(textsOf(Stretch::wrists).title, "Muñecas");
    EXPECT_EQ(textsOf(Stretch::hips).title, "Caderas");
    EXPECT_EQ(textsOf(Stretch::fullBody).title, "Cuerpo completo");
    EXPECT_EQ(textsOf(Stretch::wrists).icon, "hand.raised.fingers.spread");
    EXPECT_EQ(textsOf(Stretch::wrists).instruction,
              "Estira los dedos hacia atrás 20 segundos. Rota las muñecas en círculo 10 veces cada "
              "dirección.");
    EXPECT_EQ(textsOf(Stretch::wrists).motivational, "Tus manos son tu herramienta — cuídalas.");
}

TEST(Stretch, NoTwoShareAText) {
    std::set<std::string_view> texts;
    for (const auto stretch : allStretches()) {
        const auto& row = textsOf(stretch);
        for (const auto text : {row.title, row.icon, row.instruction, row.motivational}) {
            EXPECT_FALSE(text.empty());
            EXPECT_TRUE(texts.insert(text).second) << text;
        }
    }
}

}  // namespace
}  // namespace tidewatch
