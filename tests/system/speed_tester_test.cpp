#include "system/speed_tester.h"

#include <gmock/gmock.h>

#include <memory>

#include "platform/fake/fake_clock.h"
#include "platform/fake/fake_http_client.h"
#include "platform/fake/fake_machine_counters.h"
#include "platform/fake/fake_main_loop.h"
#include "system/speed_scale.h"

namespace tidewatch {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using testing::EndsWith;
using Phase = SpeedTester::Phase;

struct SpeedTesterTest : testing::Test {
    platform::FakeClock clock{Instant(seconds(1'800'000'000))};
    platform::FakeMainLoop mainLoop{clock};
    platform::FakeMachineCounters counters;
    platform::FakeHttpClient http{mainLoop};
    std::unique_ptr<SpeedTester> tester = std::make_unique<SpeedTester>(SpeedTester::Dependencies{
        .clock = clock,
        .mainLoop = mainLoop,
        .counters = counters,
        .http = http,
    });

    void SetUp() override { counters.traffic = platform::InterfaceBytes(); }

    // Up to the request for the download.
    void startDownload() {
        tester->startTest();
        http.end();
        ASSERT_TRUE(http.isOpen(http.requestCount() - 1));
    }

    // A sample in which the machine receives at this speed.
    void sampleAt(double mbps) {
        counters.traffic->received += static_cast<std::uint64_t>(mbps * 1e6 / 8 / 4);
        mainLoop.runFor(milliseconds(250));
    }
};

TEST_F(SpeedTesterTest, NothingIsRequestedBeforeTheStart) {
    mainLoop.runFor(seconds(60));
    EXPECT_EQ(http.requestCount(), 0);
    EXPECT_EQ(tester->phase(), Phase::idle);
}

TEST_F(SpeedTesterTest, AsksForNothingAndThenForTheTarget) {
    startDownload();
    ASSERT_EQ(http.requestCount(), 2);
    EXPECT_THAT(http.url(0), EndsWith("/__down?bytes=0"));
    EXPECT_THAT(http.url(1), EndsWith("/__down?bytes=80000000"));
    EXPECT_EQ(http.url(1).find("https://"), 0);
    EXPECT_EQ(http.timeOut(1), seconds(40));
}

TEST_F(SpeedTesterTest, ThePingIsTheTimeOfTheSmallRequest) {
    tester->startTest();
    EXPECT_EQ(tester->phase(), Phase::downloading);
    clock.advance(milliseconds(37));
    http.end();
    EXPECT_DOUBLE_EQ(tester->pingMs(), 37);
}

TEST_F(SpeedTesterTest, AFailedPingShowsTheTimeToItsFailureAndDoesNotStopTheTest) {
    tester->startTest();
    clock.advance(milliseconds(500));
    http.end(platform::HttpFailure{false, "refused"});
    EXPECT_DOUBLE_EQ(tester->pingMs(), 500);
    EXPECT_EQ(tester->phase(), Phase::downloading);
    EXPECT_EQ(tester->errorMessage(), "");
    EXPECT_EQ(http.requestCount(), 2);
}

TEST_F(SpeedTesterTest, AUrlThatCannotBeBuiltIsAFailure) {
    http.refusesUrls = true;
    tester->startTest();
    EXPECT_EQ(tester->phase(), Phase::failed);
    EXPECT_EQ(tester->errorMessage(), "URL inválida");
    EXPECT_EQ(mainLoop.timerCount(), 0);
}

TEST_F(SpeedTesterTest, TheFirstSpeedAfterASampleOf100Is65) {
    startDownload();
    sampleAt(100);
    EXPECT_DOUBLE_EQ(tester->currentMbps(), 65);
    EXPECT_DOUBLE_EQ(tester->peakMbps(), 65);
    sampleAt(20);
    EXPECT_DOUBLE_EQ(tester->currentMbps(), 0.65 * 20 + 0.35 * 65);
    EXPECT_DOUBLE_EQ(tester->peakMbps(), 65);
}

TEST_F(SpeedTesterTest, CountersThatWentBackwardsGiveZeroWhichIsSmoothed) {
    counters.traffic->received = 1'000'000;
    startDownload();
    sampleAt(100);
    counters.traffic->received = 5;
    mainLoop.runFor(milliseconds(250));
    EXPECT_DOUBLE_EQ(tester->currentMbps(), 65 * 0.35);
    // From there on.
    sampleAt(100);
    EXPECT_DOUBLE_EQ(tester->currentMbps(), 65 + 65 * 0.35 * 0.35);
}

TEST_F(SpeedTesterTest, ASampleIsOfTheTimeThatHasPassed) {
    startDownload();
    counters.traffic->received += 25'000'000;
    clock.advance(seconds(2));
    mainLoop.run();
    EXPECT_DOUBLE_EQ(tester->currentMbps(), 65);
}

TEST_F(SpeedTesterTest, UnreadableCountersAreNoSpeed) {
    startDownload();
    counters.traffic.reset();
    mainLoop.runFor(milliseconds(250));
    EXPECT_EQ(tester->currentMbps(), 0);
}

TEST_F(SpeedTesterTest, TheAverageIsOfTheDownloadFromItsFirstByte) {
    startDownload();
    clock.advance(seconds(3));
    http.send(40'000'000);
    clock.advance(seconds(8));
    http.send(40'000'000);
    http.end();
    EXPECT_EQ(tester->phase(), Phase::done);
    EXPECT_DOUBLE_EQ(tester->avgMbps(), 80);
    EXPECT_DOUBLE_EQ(tester->currentMbps(), 80);
    EXPECT_EQ(tester->progress(), 1);
    EXPECT_EQ(mainLoop.timerCount(), 0);
}

TEST_F(SpeedTesterTest, AnEndInTheMomentOfTheFirstByteHasNoAverage) {
    startDownload();
    http.send(10);
    http.end();
    EXPECT_EQ(tester->phase(), Phase::done);
    EXPECT_EQ(tester->avgMbps(), 0);
}

TEST_F(SpeedTesterTest, ProgressIsOfTheTargetAndNeverExceedsOne) {
    startDownload();
    http.send(20'000'000);
    EXPECT_DOUBLE_EQ(tester->progress(), 0.25);
    http.send(70'000'000);
    EXPECT_EQ(tester->progress(), 1);
}

TEST_F(SpeedTesterTest, TheTotalOfTooMuchCounts) {
    startDownload();
    http.send(100'000'000);
    clock.advance(seconds(8));
    http.end();
    EXPECT_DOUBLE_EQ(tester->avgMbps(), 100);
}

TEST_F(SpeedTesterTest, ThePeakIsAtLeastTheAverage) {
    startDownload();
    sampleAt(10);
    http.send(80'000'000);
    clock.advance(seconds(1));
    http.end();
    EXPECT_DOUBLE_EQ(tester->peakMbps(), 640);
}

TEST_F(SpeedTesterTest, AGreaterPeakThanTheAverageStays) {
    startDownload();
    sampleAt(1000);
    http.send(80'000'000);
    clock.advance(seconds(8));
    http.end();
    EXPECT_DOUBLE_EQ(tester->peakMbps(), 650);
}

TEST_F(SpeedTesterTest, AnErrorFailsInThePlatformsWordsAndTheFiguresStay) {
    startDownload();
    sampleAt(100);
    http.send(8'000'000);
    http.end(platform::HttpFailure{false, "conexión reiniciada"});
    EXPECT_EQ(tester->phase(), Phase::failed);
    EXPECT_EQ(tester->errorMessage(), "conexión reiniciada");
    EXPECT_DOUBLE_EQ(tester->currentMbps(), 65);
    EXPECT_DOUBLE_EQ(tester->progress(), 0.1);
    EXPECT_EQ(tester->avgMbps(), 0);
    EXPECT_EQ(mainLoop.timerCount(), 0);
}

TEST_F(SpeedTesterTest, AnEndWithoutDataIsAFailure) {
    startDownload();
    http.end();
    EXPECT_EQ(tester->phase(), Phase::failed);
    EXPECT_EQ(tester->errorMessage(), "sin datos recibidos");
}

TEST_F(SpeedTesterTest, ACancelAfterTheFirstByteEndsWithTheAverageSoFar) {
    startDownload();
    http.send(10'000'000);
    clock.advance(seconds(2));
    tester->cancel();
    EXPECT_EQ(tester->phase(), Phase::idle);
    EXPECT_EQ(mainLoop.timerCount(), 0);
    mainLoop.run();
    EXPECT_EQ(tester->phase(), Phase::done);
    EXPECT_DOUBLE_EQ(tester->avgMbps(), 40);
    EXPECT_EQ(tester->progress(), 1);
}

TEST_F(SpeedTesterTest, ACancelBeforeTheFirstByteEndsAsAFailure) {
    startDownload();
    tester->cancel();
    EXPECT_EQ(tester->phase(), Phase::idle);
    mainLoop.run();
    EXPECT_EQ(tester->phase(), Phase::failed);
    EXPECT_EQ(tester->errorMessage(), "sin datos recibidos");
}

TEST_F(SpeedTesterTest, ACancelDuringThePingDownloadsNothing) {
    tester->startTest();
    tester->cancel();
    mainLoop.run();
    EXPECT_EQ(http.requestCount(), 1);
    EXPECT_FALSE(http.isOpen(0));
    EXPECT_EQ(tester->phase(), Phase::failed);
}

TEST_F(SpeedTesterTest, ACancelWithoutATestDoesNothing) {
    tester->cancel();
    EXPECT_EQ(tester->phase(), Phase::idle);
    startDownload();
    http.send(10);
    http.end();
    tester->cancel();
    mainLoop.run();
    EXPECT_EQ(tester->phase(), Phase::done);
}

TEST_F(SpeedTesterTest, AStartDuringATestChangesNothing) {
    startDownload();
    sampleAt(100);
    http.send(10'000'000);
    tester->startTest();
    EXPECT_EQ(http.requestCount(), 2);
    EXPECT_DOUBLE_EQ(tester->currentMbps(), 65);
    EXPECT_DOUBLE_EQ(tester->progress(), 0.125);
}

TEST_F(SpeedTesterTest, AStartAfterTheEndZeroesAllFiguresAtOnce) {
    startDownload();
    sampleAt(100);
    http.send(10'000'000);
    clock.advance(seconds(1));
    http.end(platform::HttpFailure{false, "x"});
    tester->startTest();
    EXPECT_EQ(tester->phase(), Phase::downloading);
    EXPECT_EQ(tester->currentMbps(), 0);
    EXPECT_EQ(tester->peakMbps(), 0);
    EXPECT_EQ(tester->avgMbps(), 0);
    EXPECT_EQ(tester->pingMs(), 0);
    EXPECT_EQ(tester->progress(), 0);
    EXPECT_EQ(tester->errorMessage(), "");
    // The first byte is that of the new test.
    http.end();
    clock.advance(seconds(5));
    http.send(8'000'000);
    clock.advance(seconds(1));
    http.end();
    EXPECT_DOUBLE_EQ(tester->avgMbps(), 64);
}

TEST_F(SpeedTesterTest, AStartRightAfterACancelIsNotDisturbedByTheOldTest) {
    startDownload();
    http.send(10);
    tester->cancel();
    tester->startTest();
    mainLoop.run();
    EXPECT_EQ(tester->phase(), Phase::downloading);
    EXPECT_FALSE(http.isOpen(1));
    EXPECT_EQ(tester->progress(), 0);
}

TEST_F(SpeedTesterTest, ADestroyedTesterEndsItsRequest) {
    startDownload();
    tester.reset();
    EXPECT_FALSE(http.isOpen(1));
    EXPECT_EQ(mainLoop.timerCount(), 0);
    mainLoop.runFor(seconds(1));
}

TEST(NiceMax, LeavesSomeRoomAboveTheSpeed) {
    EXPECT_EQ(niceMax(0), 50);
    EXPECT_EQ(niceMax(46), 50);
    EXPECT_EQ(niceMax(46.1), 100);
    EXPECT_EQ(niceMax(92), 100);
    EXPECT_EQ(niceMax(230), 250);
    EXPECT_EQ(niceMax(460), 500);
    EXPECT_EQ(niceMax(920), 1000);
    EXPECT_EQ(niceMax(2300), 2500);
    EXPECT_EQ(niceMax(4600), 5000);
    EXPECT_EQ(niceMax(9200), 10000);
    EXPECT_EQ(niceMax(9200.5), 10000);
    EXPECT_EQ(niceMax(10000), 10000);
    EXPECT_EQ(niceMax(12345), 13000);
}

}  // namespace
}  // namespace tidewatch
