// All that the gadgets show, in each state, but for the arcade's games, which have golden values of their
// own.

#include <gtest/gtest.h>

#include <QCoreApplication>

#include "shell/views/widgets/gadgets_scene.h"
#include "tests/support/presenter_probe.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {
namespace {

struct GadgetGoldenTest : testing::Test, GadgetsWorld {
    void expectGolden(const QString& state) {
        QJsonObject shown;
        for (const auto kind : allWidgetKinds()) {
            if (kind != WidgetKind::arcade) shown[text(rawValue(kind))] = test::probe(appear(kind));
        }
        test::expectGolden(shown, QString("%1/%2.json").arg(TIDEWATCH_GOLDEN_FOLDER, state));
    }
};

TEST_F(GadgetGoldenTest, NothingBookedAndNothingKnownOfTheMachine) {
    expectGolden("nothing");
}

TEST_F(GadgetGoldenTest, OneApplicationOnAWiredMachineWithoutVolumesDuringASpeedTest) {
    bookTiers(4000, 0);
    activateProject("Sitio web", "#6B9ED4");
    startSpeedTest();
    useMachine({.link = wired, .volume = 0});
    expectGolden("one");
}

TEST_F(GadgetGoldenTest, WeeksOfWorkOnAWirelessMachineAfterASpeedTest) {
    useBelievableDay();
    completeSpeedTest();
    useMachine();
    expectGolden("weeks");
}

TEST_F(GadgetGoldenTest, TheLongestTextsAfterAFailedSpeedTest) {
    useLongestTexts();
    failSpeedTest();
    expectGolden("longest");
}

}  // namespace
}  // namespace tidewatch
