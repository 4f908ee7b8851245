#include "platform/qt/qt_http_client.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QTcpServer>
#include <QTimer>

#include "tests/platform/qt/http_client_fixture.h"

namespace tidewatch::platform {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::Not;

constexpr qint64 megabyte = 1'000'000;

QByteArray content(qint64 bytes) {
    return QByteArray(bytes, 'x');
}

// Sends everything and closes the connection properly.
LoopbackServer::Script sending(const QByteArray& response) {
    return [response](QSslSocket& client, const QByteArray&) {
        client.write(response);
        client.disconnectFromHost();
    };
}

QStringList namesOfThreads() {
    QStringList names;
    for (const auto& id : QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile name("/proc/self/task/" + id + "/comm");
        if (name.open(QIODevice::ReadOnly)) names << name.readAll().trimmed();
    }
    return names;
}

TEST_F(QtHttpClientTest, WholeContentIsCounted) {
    requestFrom(sending(responseHead(20 * megabyte) + content(20 * megabyte)));
    EXPECT_EQ(received_, 20 * megabyte);
    EXPECT_FALSE(failure_);
    EXPECT_EQ(ends_, 1);
}

TEST_F(QtHttpClientTest, WithoutContentThereIsAnEndAlone) {
    requestFrom(sending(responseHead(0)));
    EXPECT_EQ(pieces_, 0);
    EXPECT_FALSE(failure_);
}

TEST_F(QtHttpClientTest, ASlowStartIsWaitedFor) {
    requestFrom([](QSslSocket& client, const QByteArray&) {
        QTimer::singleShot(1s, &client, [&client] { sending(responseHead(5) + "hello")(client, {}); });
    });
    EXPECT_EQ(received_, 5);
    EXPECT_FALSE(failure_);
}

TEST_F(QtHttpClientTest, ATrickleLongerThanTheTimeOutIsNoSilence) {
    constexpr int pieces = 10;
    QElapsedTimer time;
    time.start();
    requestFrom(
        [](QSslSocket& client, const QByteArray&) {
            client.write(responseHead(pieces));
            auto* timer = new QTimer(&client);
            QObject::connect(timer, &QTimer::timeout, &client, [&client, left = pieces]() mutable {
                if (left-- > 0) client.write("x");
            });
            timer->start(400ms);
        },
        3s);
    EXPECT_EQ(received_, pieces);
    EXPECT_FALSE(failure_);
    EXPECT_GT(time.elapsed(), 3000);
}

TEST_F(QtHttpClientTest, AStallPastTheTimeOutIsAFailure) {
    requestFrom([](QSslSocket& client, const QByteArray&) { client.write(responseHead(100) + "hello"); }, 1s);
    ASSERT_TRUE(failure_);
    EXPECT_FALSE(failure_->isCancelled);
    EXPECT_EQ(message(), "El servidor dejó de responder");
}

TEST_F(QtHttpClientTest, AServerThatNeverAnswersIsAFailure) {
    requestFrom([](QSslSocket&, const QByteArray&) {}, 1s);
    EXPECT_EQ(message(), "El servidor dejó de responder");
    EXPECT_EQ(received_, 0);
}

TEST_F(QtHttpClientTest, AResetInTheMiddleIsAFailure) {
    requestFrom([](QSslSocket& client, const QByteArray&) {
        client.write(responseHead(10 * megabyte) + content(megabyte));
        client.flush();
        QTimer::singleShot(100ms, &client, [&client] { client.abort(); });
    });
    EXPECT_EQ(message(), "El servidor cortó la conexión");
    EXPECT_FALSE(failure_->isCancelled);
    EXPECT_LE(received_, megabyte);
}

TEST_F(QtHttpClientTest, LessThanAnnouncedIsAFailure) {
    requestFrom(sending(responseHead(10) + "hello"));
    EXPECT_EQ(message(), "El servidor cortó la conexión");
    EXPECT_EQ(received_, 5);
}

TEST_F(QtHttpClientTest, OfMoreThanAnnouncedTheRestIsIgnored) {
    requestFrom(sending(responseHead(5) + "hello, and more"));
    EXPECT_EQ(received_, 5);
    EXPECT_FALSE(failure_);
}

TEST_F(QtHttpClientTest, WithoutAnAnnouncedLengthTheEndIsThatOfTheConnection) {
    requestFrom(sending(responseHead(-1) + "hello, and more"));
    EXPECT_EQ(received_, 15);
    EXPECT_FALSE(failure_);
}

TEST_F(QtHttpClientTest, AServerThatRefusesIsAFailure) {
    server_ = std::make_unique<LoopbackServer>(certificate_, sending(""));
    const auto url = server_->url();
    server_->close();
    request(url);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(message(), "El servidor rechazó la conexión");
}

TEST_F(QtHttpClientTest, AnyStatusIsAResponse) {
    for (const auto* status : {"404 Not Found", "500 Internal Server Error", "429 Too Many Requests"}) {
        requestFrom(sending(responseHead(5, status) + "sorry"));
        EXPECT_FALSE(failure_) << status << ": " << message();
        EXPECT_EQ(received_, 5) << status;
    }
}

TEST_F(QtHttpClientTest, WhatIsNoHttpIsAFailure) {
    requestFrom(sending("hello\r\n\r\n"));
    ASSERT_TRUE(failure_);
    EXPECT_NE(message(), "");
    EXPECT_EQ(received_, 0);
}

TEST_F(QtHttpClientTest, ARedirectWithinTheServerIsFollowed) {
    requestFrom([](QSslSocket& client, const QByteArray& request) {
        const bool isFirst = request.startsWith("GET / ");
        sending(isFirst ? "HTTP/1.1 302 Found\r\nLocation: /there\r\nContent-Length: 0\r\n"
                          "Connection: close\r\n\r\n"
                        : responseHead(5) + "there")(client, request);
    });
    EXPECT_EQ(received_, 5);
    EXPECT_FALSE(failure_);
    ASSERT_EQ(server_->requests().size(), 2);
    EXPECT_TRUE(server_->requests()[1].startsWith("GET /there "));
}

TEST_F(QtHttpClientTest, ARedirectToAnotherServerIsNot) {
    const LoopbackServer other(certificate_, sending(responseHead(5) + "other"));
    QTcpServer unencrypted;
    ASSERT_TRUE(unencrypted.listen(QHostAddress::LocalHost));
    const auto plain = "http://127.0.0.1:" + std::to_string(unencrypted.serverPort()) + "/";
    for (const auto& target : {other.url(), plain}) {
        requestFrom(sending("HTTP/1.1 302 Found\r\nLocation: " + QByteArray::fromStdString(target) +
                            "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n"));
        EXPECT_EQ(message(), "El servidor remite a otra dirección");
    }
    EXPECT_TRUE(other.requests().empty());
    EXPECT_FALSE(unencrypted.hasPendingConnections());
}

TEST_F(QtHttpClientTest, ARedirectInACircleEnds) {
    requestFrom(
        sending("HTTP/1.1 302 Found\r\nLocation: /\r\nContent-Length: 0\r\nConnection: close\r\n\r\n"));
    EXPECT_EQ(message(), "El servidor remite a otra dirección");
    EXPECT_LT(server_->requests().size(), 10);
}

TEST_F(QtHttpClientTest, ACancelBeforeTheFirstByteEndsIt) {
    server_ = std::make_unique<LoopbackServer>(certificate_, [](QSslSocket&, const QByteArray&) {});
    request(server_->url());
    ASSERT_TRUE(waitFor([this] { return !server_->requests().empty(); }));
    transfer_->cancel();
    transfer_->cancel();
    EXPECT_EQ(ends_, 0);
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(failure_->isCancelled);
    EXPECT_EQ(received_, 0);
}

TEST_F(QtHttpClientTest, ACancelBeforeTheRequestHasLeftEndsItToo) {
    server_ = std::make_unique<LoopbackServer>(certificate_, sending(responseHead(5) + "hello"));
    request(server_->url());
    transfer_->cancel();
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(failure_->isCancelled);
    EXPECT_EQ(received_, 0);
}

TEST_F(QtHttpClientTest, ACancelAfterTheFirstByteEndsIt) {
    server_ = std::make_unique<LoopbackServer>(certificate_, [](QSslSocket& client, const QByteArray&) {
        client.write(responseHead(100) + "hello");
    });
    request(server_->url());
    ASSERT_TRUE(waitFor([this] { return received_ == 5; }));
    transfer_->cancel();
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(failure_->isCancelled);
    settle(50);
    EXPECT_EQ(ends_, 1);
}

TEST_F(QtHttpClientTest, ACancelAfterTheEndIsIgnored) {
    requestFrom(sending(responseHead(5) + "hello"));
    transfer_->cancel();
    settle(50);
    EXPECT_EQ(ends_, 1);
    EXPECT_FALSE(failure_);
}

TEST_F(QtHttpClientTest, ADestroyedTransferTellsNothingAndIsEnded) {
    bool isConnected = false;
    server_ =
        std::make_unique<LoopbackServer>(certificate_, [&isConnected](QSslSocket& client, const QByteArray&) {
            isConnected = true;
            QObject::connect(&client, &QSslSocket::disconnected, [&] { isConnected = false; });
            client.write(responseHead(100) + "hello");
        });
    request(server_->url());
    ASSERT_TRUE(waitFor([this] { return received_ == 5; }));
    ASSERT_TRUE(isConnected);
    transfer_.reset();
    EXPECT_TRUE(waitFor([&] { return !isConnected; }));
    EXPECT_EQ(ends_, 0);
}

TEST_F(QtHttpClientTest, TheListenerMayDestroyTheTransfer) {
    server_ = std::make_unique<LoopbackServer>(certificate_, sending(responseHead(5) + "hello"));
    int pieces = 0;
    transfer_ = client_.get(server_->url(), ample,
                            {.received =
                                 [&](std::size_t) {
                                     ++pieces;
                                     transfer_.reset();
                                 },
                             .ended = [](const auto&) { ADD_FAILURE() << "told after its destruction"; }});
    ASSERT_TRUE(waitFor([&] { return pieces > 0; }));
    settle(100);
    EXPECT_EQ(pieces, 1);
}

TEST_F(QtHttpClientTest, AnUntrustedServerIsToldNothing) {
    server_ = std::make_unique<LoopbackServer>(LoopbackCertificate(), sending(responseHead(5) + "hello"));
    request(server_->url());
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(message(), "No se pudo establecer una conexión segura");
    EXPECT_TRUE(server_->requests().empty());
}

TEST_F(QtHttpClientTest, OnlyEncryptedRequestsAreMade) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    const auto address = "127.0.0.1:" + std::to_string(server.serverPort());
    for (const auto& url : {"http://" + address + "/", "ftp://" + address + "/", address + "/",
                            std::string("file:///etc/hostname"), std::string("https:///x"), std::string()}) {
        EXPECT_FALSE(client_.get(url, ample, {.received = [](std::size_t) {}, .ended = [](const auto&) {}}))
            << url;
    }
    settle(50);
    EXPECT_FALSE(server.hasPendingConnections());
}

TEST_F(QtHttpClientTest, TheRequestSaysNothingAboutTheUser) {
    requestFrom([](QSslSocket& client, const QByteArray&) {
        sending("HTTP/1.1 200 OK\r\nSet-Cookie: a=b\r\nContent-Length: 2\r\nConnection: close\r\n\r\nok")(
            client, {});
    });
    request(server_->url());
    ASSERT_TRUE(waitForEnd());
    const auto request = server_->requests().back().toStdString();
    EXPECT_THAT(request, HasSubstr("User-Agent: Tidewatch\r\n"));
    EXPECT_THAT(request, HasSubstr("Accept-Language: *\r\n"));
    EXPECT_THAT(request, HasSubstr("Accept-Encoding: identity\r\n"));
    EXPECT_THAT(request, Not(HasSubstr("Cookie")));
    EXPECT_THAT(request, Not(HasSubstr("Referer")));
}

TEST_F(QtHttpClientTest, PackedContentIsCountedAsItWasSent) {
    requestFrom(
        sending("HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\nContent-Length: 7\r\n"
                "Connection: close\r\n\r\nno gzip"));
    EXPECT_EQ(received_, 7);
    EXPECT_FALSE(failure_);
}

TEST_F(QtHttpClientTest, ThereIsNoThreadBeforeTheFirstRequest) {
    const auto before = namesOfThreads();
    const QtHttpClient client(loop_);
    EXPECT_EQ(namesOfThreads(), before);
}

TEST_F(QtHttpClientTest, ATransferThatHasEndedKeepsNoThreadOfItsOwn) {
    requestFrom(sending(responseHead(5) + "hello"));
    EXPECT_TRUE(waitFor([] { return namesOfThreads().filter("QNetworkAccess").isEmpty(); }));
    EXPECT_TRUE(transfer_);
}

TEST_F(QtHttpClientTest, AClientMayEndDuringARequest) {
    auto client = std::make_unique<QtHttpClient>(loop_, certificate_.certificate.toStdString());
    server_ = std::make_unique<LoopbackServer>(certificate_, [](QSslSocket&, const QByteArray&) {});
    transfer_ = client->get(server_->url(), ample,
                            {.received = [](std::size_t) {}, .ended = [](const auto&) { ADD_FAILURE(); }});
    ASSERT_TRUE(waitFor([this] { return !server_->requests().empty(); }));
    transfer_.reset();
    client.reset();
    settle(50);
}

}  // namespace
}  // namespace tidewatch::platform
