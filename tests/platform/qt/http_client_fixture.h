#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/qt/qt_http_client.h"
#include "platform/qt/qt_main_loop.h"
#include "tests/platform/qt/loopback_server.h"

namespace tidewatch::platform {

/// The client, and what it tells of one request.
class QtHttpClientTest : public testing::Test {
protected:
    static constexpr std::chrono::seconds ample{60};

    /// Runs the event loop until `condition` holds, for a minute at most.
    static bool waitFor(const std::function<bool()>& condition) {
        QElapsedTimer timer;
        timer.start();
        while (!condition() && timer.elapsed() < 60'000)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        return condition();
    }

    /// What has been posted so far has been told after this.
    static void settle(int milliseconds) {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < milliseconds) QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }

    void request(const std::string& url, std::chrono::milliseconds timeOut = ample) {
        received_ = 0;
        pieces_ = ends_ = 0;
        failure_.reset();
        isInside_ = true;
        transfer_ = client_.get(url, timeOut,
                                {.received =
                                     [this](std::size_t bytes) {
                                         ++pieces_;
                                         received_ += bytes;
                                         EXPECT_EQ(ends_, 0);
                                     },
                                 .ended =
                                     [this](const std::optional<HttpFailure>& failure) {
                                         EXPECT_FALSE(isInside_) << "told inside the call";
                                         ++ends_;
                                         failure_ = failure;
                                     }});
        isInside_ = false;
        ASSERT_TRUE(transfer_);
    }

    bool waitForEnd() {
        return waitFor([this] { return ends_ > 0; });
    }
    /// The end of a request in which the server does this.
    void requestFrom(LoopbackServer::Script script, std::chrono::milliseconds timeOut = ample) {
        server_ = std::make_unique<LoopbackServer>(certificate_, std::move(script));
        request(server_->url(), timeOut);
        EXPECT_TRUE(waitForEnd());
    }
    [[nodiscard]] std::string message() const { return failure_ ? failure_->message : ""; }

    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QApplication application_{argc_, argv_};
    QtMainLoop loop_;
    LoopbackCertificate certificate_;
    QtHttpClient client_{loop_, certificate_.certificate.toStdString()};
    std::unique_ptr<LoopbackServer> server_;
    std::unique_ptr<HttpTransfer> transfer_;
    std::size_t received_ = 0;
    int pieces_ = 0;
    bool isInside_ = false;
    int ends_ = 0;
    std::optional<HttpFailure> failure_;
};

}  // namespace tidewatch::platform
