#include "platform/linux/gpu_figures.h"

#include <gmock/gmock.h>

#include <atomic>
#include <filesystem>
#include <thread>

#include "platform/linux/nvml.h"
#include "tests/support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

using namespace std::chrono_literals;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;

struct GpuFiguresTest : testing::Test {
    test::TemporaryDirectory sys;
    std::chrono::steady_clock::time_point now{1h};
    std::atomic<int> questions = 0;
    GpuFigures gpus{sys.path(),
                    [this] {
                        ++questions;
                        return std::vector{0.25, 0.5};
                    },
                    [this] { return now; }};

    void put(const std::string& name, const std::string& content) const { sys.write(name, content + "\n"); }
    // The counter of a card after `time`.
    std::vector<double> readAfter(std::chrono::milliseconds time, const std::string& file,
                                  const std::string& slept) {
        now += time;
        put(file, slept);
        return gpus.read();
    }
    // Until the library has been asked once.
    std::vector<double> readFromLibrary() {
        auto figures = gpus.read();
        while (figures.empty()) {
            std::this_thread::sleep_for(1ms);
            figures = gpus.read();
        }
        return figures;
    }
};

TEST_F(GpuFiguresTest, WithoutProcessorsThereAreNoFigures) {
    EXPECT_THAT(gpus.read(), IsEmpty());
    put("class/drm/version", "drm 1.1.0");
    put("class/drm/card0/device/vendor", "0x1af4");
    EXPECT_THAT(gpus.read(), IsEmpty());
}

TEST_F(GpuFiguresTest, EachCardThatTellsItsLoadHasAFigure) {
    put("class/drm/card0/device/gpu_busy_percent", "37");
    put("class/drm/card1/device/gpu_busy_percent", "1");
    put("class/drm/card1-HDMI-A-1/device/gpu_busy_percent", "99");
    EXPECT_THAT(gpus.read(), ElementsAre(0.37, 0.01));
}

TEST_F(GpuFiguresTest, TheLoadIsTheShareOfTheTimeThatACardHasNotSlept) {
    const auto* file = "class/drm/card0/power/rc6_residency_ms";
    EXPECT_THAT(readAfter(0s, file, "500000"), IsEmpty());
    EXPECT_THAT(readAfter(2s, file, "501500"), ElementsAre(DoubleNear(0.25, 1e-9)));
    EXPECT_THAT(readAfter(2s, file, "501500"), ElementsAre(1));
    EXPECT_THAT(readAfter(2s, file, "503510"), ElementsAre(0));
}

TEST_F(GpuFiguresTest, ACounterThatStartsAnewIsFullLoadAtMost) {
    const auto* file = "class/drm/card0/power/rc6_residency_ms";
    readAfter(0s, file, "500000");
    EXPECT_THAT(readAfter(2s, file, "10"), ElementsAre(1));
}

TEST_F(GpuFiguresTest, TheBusiestPartOfACardCounts) {
    put("class/drm/card0/power/rc6_residency_ms", "7");
    put("class/drm/card0/gt/gt0/rc6_residency_ms", "1000");
    readAfter(0s, "class/drm/card0/gt/gt1/rc6_residency_ms", "1000");
    put("class/drm/card0/gt/gt0/rc6_residency_ms", "1500");
    EXPECT_THAT(readAfter(1s, "class/drm/card0/gt/gt1/rc6_residency_ms", "1900"),
                ElementsAre(DoubleNear(0.5, 1e-9)));
}

TEST_F(GpuFiguresTest, TheNewerDriverCountsElsewhere) {
    const auto* file = "class/drm/card0/device/tile0/gt0/gtidle/idle_residency_ms";
    readAfter(0s, file, "1000");
    EXPECT_THAT(readAfter(1s, file, "1800"), ElementsAre(DoubleNear(0.2, 1e-9)));
}

TEST_F(GpuFiguresTest, ACardThatNeverSleepsTellsNothing) {
    const auto* file = "class/drm/card0/power/rc6_residency_ms";
    readAfter(0s, file, "0");
    EXPECT_THAT(readAfter(2s, file, "0"), IsEmpty());
    put("class/drm/card0/power/rc6_enable", "0");
    readAfter(2s, file, "100");
    EXPECT_THAT(readAfter(2s, file, "100"), IsEmpty());
}

TEST_F(GpuFiguresTest, GarbageIsNoFigure) {
    const auto* file = "class/drm/card0/power/rc6_residency_ms";
    readAfter(0s, file, "lots");
    EXPECT_THAT(readAfter(2s, file, ""), IsEmpty());
    EXPECT_THAT(readAfter(2s, file, "-5"), IsEmpty());
}

TEST_F(GpuFiguresTest, ACardThatIsSwitchedOffHasNoLoadAndIsNotRead) {
    put("class/drm/card1/device/gpu_busy_percent", "64");
    put("class/drm/card1/device/power/runtime_status", "suspended");
    EXPECT_THAT(gpus.read(), ElementsAre(0));
    put("class/drm/card1/device/power/runtime_status", "active");
    EXPECT_THAT(gpus.read(), ElementsAre(0.64));
    // One that would tell nothing either way.
    put("class/drm/card2/device/power/runtime_status", "suspended");
    EXPECT_THAT(gpus.read(), ElementsAre(0.64));
}

TEST_F(GpuFiguresTest, TheLibraryIsAskedInTheBackgroundWhereItsDriverIs) {
    EXPECT_THAT(gpus.read(), IsEmpty());
    EXPECT_EQ(questions, 0);
    put("bus/pci/drivers/nvidia/0000:01:00.0/power/runtime_status", "active");
    EXPECT_THAT(readFromLibrary(), ElementsAre(0.25, 0.5));
    EXPECT_GE(questions, 1);
}

TEST_F(GpuFiguresTest, TheLibraryIsNotAskedWhileAllOfItsProcessorsAreSwitchedOff) {
    put("bus/pci/drivers/nvidia/module/version", "1");
    put("bus/pci/drivers/nvidia/0000:01:00.0/power/runtime_status", "suspended");
    EXPECT_THAT(gpus.read(), ElementsAre(0));
    EXPECT_EQ(questions, 0);
}

TEST(Nvml, TellsTheLoadOfEachProcessorThatTellsIt) {
    Nvml library(TIDEWATCH_NVML_STUB);
    EXPECT_THAT(library.utilization(), ElementsAre(0.42, 1));
    EXPECT_THAT(library.utilization(), ElementsAre(0.42, 1));
}

TEST(Nvml, WithoutTheLibraryThereIsNoLoad) {
    Nvml missing("/nonexistent/libnvidia-ml.so.1");
    EXPECT_THAT(missing.utilization(), IsEmpty());
    // One that is something else.
    Nvml other("libm.so.6");
    EXPECT_THAT(other.utilization(), IsEmpty());
}

}  // namespace
}  // namespace tidewatch::platform
