// The speed test as a whole: its rules on the real client, against a server on the loopback.

#include <gtest/gtest.h>

#include <QTimer>
#include <cmath>

#include "platform/fake/fake_machine_counters.h"
#include "platform/qt/qt_clock.h"
#include "system/speed_tester.h"
#include "tests/platform/qt/http_client_fixture.h"

namespace tidewatch::platform {
namespace {

using namespace std::chrono_literals;
using Phase = SpeedTester::Phase;

/// The real client, with a server of the test in place of the public one.
class RedirectedClient final : public HttpClient {
public:
    RedirectedClient(HttpClient& client, std::string server) : client_(client), server_(std::move(server)) {}

    [[nodiscard]] std::unique_ptr<HttpTransfer> get(const std::string& url, std::chrono::milliseconds,
                                                    HttpListener listener) override {
        const auto path = url.find('/', std::string("https://").size());
        return client_.get(server_ + url.substr(path), timeOut, std::move(listener));
    }

    std::chrono::milliseconds timeOut = 60s;

private:
    HttpClient& client_;
    const std::string server_;
};

class SpeedTesterLoopbackTest : public QtHttpClientTest {
protected:
    /// The server replies to the request for the download like this.
    void serve(LoopbackServer::Script download) {
        server_ = std::make_unique<LoopbackServer>(
            certificate_, [download = std::move(download)](QSslSocket& client, const QByteArray& request) {
                if (!request.startsWith("GET /__down?bytes=0 ")) return download(client, request);
                client.write(responseHead(0));
                client.disconnectFromHost();
            });
        redirected_ = std::make_unique<RedirectedClient>(client_, server_->url(""));
        tester_ = std::make_unique<SpeedTester>(SpeedTester::Dependencies{
            .clock = clock_, .mainLoop = loop_, .counters = counters_, .http = *redirected_});
    }

    void test() {
        tester_->startTest();
        EXPECT_TRUE(waitFor([this] { return tester_->phase() != Phase::downloading; }));
    }

    QtClock clock_;
    FakeMachineCounters counters_;
    std::unique_ptr<RedirectedClient> redirected_;
    std::unique_ptr<SpeedTester> tester_;
};

/// Sends pieces at a steady pace, and measures itself.
class SteadyServer final {
public:
    static constexpr int pieceCount = 60;
    static constexpr qint64 pieceSize = 100'000;

    void operator()(QSslSocket& client) {
        client.write(responseHead(pieceCount * pieceSize));
        auto* timer = new QTimer(&client);
        timer->setTimerType(Qt::PreciseTimer);
        sent_ = 0;
        QObject::connect(timer, &QTimer::timeout, &client, [this, &client, timer] {
            if (sent_ == 0) time_.start();
            client.write(QByteArray(pieceSize, 'x'));
            client.flush();
            if (++sent_ < pieceCount) return;
            mbps = static_cast<double>(pieceCount * pieceSize) * 8 /
                   (static_cast<double>(time_.nsecsElapsed()) / 1e9) / 1e6;
            timer->stop();
            client.disconnectFromHost();
        });
        timer->start(50ms);
    }

    double mbps = 0;

private:
    int sent_ = 0;
    QElapsedTimer time_;
};

TEST_F(SpeedTesterLoopbackTest, TheFinalFigureIsWithinTwoPercentOfWhatTheServerSent) {
    SteadyServer steady;
    serve([&steady](QSslSocket& client, const QByteArray&) { steady(client); });
    // The best of several: between the last piece and its arrival others may want the processor.
    double deviation = 1;
    for (int round = 0; round < 5 && deviation > 0.02; ++round) {
        test();
        ASSERT_EQ(tester_->phase(), Phase::done) << tester_->errorMessage();
        deviation = std::min(deviation, std::abs(tester_->avgMbps() / steady.mbps - 1));
    }
    EXPECT_LE(deviation, 0.02);
    EXPECT_GT(tester_->pingMs(), 0);
}

TEST_F(SpeedTesterLoopbackTest, TheWholeTargetIsDownloaded) {
    serve([](QSslSocket& client, const QByteArray& request) {
        EXPECT_TRUE(request.startsWith("GET /__down?bytes=80000000 "));
        client.write(responseHead(SpeedTester::target));
        client.write(QByteArray(SpeedTester::target, 'x'));
        client.disconnectFromHost();
    });
    double lastProgress = 0;
    bool isSteady = true;
    const auto watching = tester_->changed.connect([&] {
        isSteady = isSteady && tester_->progress() >= lastProgress;
        lastProgress = tester_->progress();
    });
    tester_->startTest();
    lastProgress = 0;
    EXPECT_TRUE(waitFor([this] { return tester_->phase() != Phase::downloading; }));
    EXPECT_EQ(tester_->phase(), Phase::done) << tester_->errorMessage();
    EXPECT_EQ(tester_->progress(), 1);
    EXPECT_TRUE(isSteady);
    EXPECT_GT(tester_->avgMbps(), 0);
}

TEST_F(SpeedTesterLoopbackTest, AStallFailsInWords) {
    serve([](QSslSocket& client, const QByteArray&) { client.write(responseHead(100) + "hello"); });
    redirected_->timeOut = 1s;
    test();
    EXPECT_EQ(tester_->phase(), Phase::failed);
    EXPECT_EQ(tester_->errorMessage(), "El servidor dejó de responder");
}

TEST_F(SpeedTesterLoopbackTest, AResetFailsAndTheProgressStays) {
    serve([](QSslSocket& client, const QByteArray&) {
        client.write(responseHead(SpeedTester::target) + QByteArray(SpeedTester::target / 10, 'x'));
        QObject::connect(&client, &QSslSocket::encryptedBytesWritten, &client, [&client] {
            if (client.encryptedBytesToWrite() == 0 && client.bytesToWrite() == 0)
                QTimer::singleShot(500ms, &client, [&client] { client.abort(); });
        });
    });
    test();
    EXPECT_EQ(tester_->phase(), Phase::failed);
    EXPECT_EQ(tester_->errorMessage(), "El servidor cortó la conexión");
    EXPECT_GT(tester_->progress(), 0);
    EXPECT_LE(tester_->progress(), 0.1);
}

TEST_F(SpeedTesterLoopbackTest, ARefusalFails) {
    serve([](QSslSocket&, const QByteArray&) {});
    server_->close();
    test();
    EXPECT_EQ(tester_->phase(), Phase::failed);
    EXPECT_EQ(tester_->errorMessage(), "El servidor rechazó la conexión");
}

TEST_F(SpeedTesterLoopbackTest, ACancelAfterTheFirstByteEndsWithTheAverageSoFar) {
    serve([](QSslSocket& client, const QByteArray&) { client.write(responseHead(100) + "hello"); });
    tester_->startTest();
    ASSERT_TRUE(waitFor([this] { return tester_->progress() > 0; }));
    settle(20);
    tester_->cancel();
    EXPECT_EQ(tester_->phase(), Phase::idle);
    EXPECT_TRUE(waitFor([this] { return tester_->phase() == Phase::done; }));
    EXPECT_GT(tester_->avgMbps(), 0);
}

TEST_F(SpeedTesterLoopbackTest, ACancelBeforeTheFirstByteEndsWithoutData) {
    serve([](QSslSocket&, const QByteArray&) {});
    tester_->startTest();
    ASSERT_TRUE(waitFor([this] { return server_->requests().size() == 2; }));
    tester_->cancel();
    EXPECT_TRUE(waitFor([this] { return tester_->phase() == Phase::failed; }));
    EXPECT_EQ(tester_->errorMessage(), "sin datos recibidos");
}

}  // namespace
}  // namespace tidewatch::platform
