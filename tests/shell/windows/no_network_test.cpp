#include "shell/windows/no_network.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTcpServer>
#include <QTest>

#include "shell/views/clock_scene.h"
#include "shell/windows/qt_surfaces.h"

namespace tidewatch {
namespace {

/// A server on this machine that counts its connections.
class Listener final {
public:
    Listener() {
        EXPECT_TRUE(server_.listen(QHostAddress::LocalHost));
        QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { ++visitors_; });
    }

    [[nodiscard]] QUrl picture() const {
        return QString("http://127.0.0.1:%1/picture.png").arg(server_.serverPort());
    }

    /// Includes every connection that was requested before.
    [[nodiscard]] int visitors() {
        QTcpSocket last;
        last.connectToHost(QHostAddress::LocalHost, server_.serverPort());
        const int before = visitors_;
        EXPECT_TRUE(QTest::qWaitFor([&] { return visitors_ > before; }, 60'000));
        QCoreApplication::processEvents();
        return --visitors_;
    }

private:
    QTcpServer server_;
    int visitors_ = 0;
};

/// The error that a request ends with.
QNetworkReply::NetworkError outcome(QNetworkAccessManager& network, const QUrl& url) {
    const std::unique_ptr<QNetworkReply> reply(network.get(QNetworkRequest(url)));
    bool finished = false;
    QObject::connect(reply.get(), &QNetworkReply::finished, reply.get(), [&finished] { finished = true; });
    EXPECT_TRUE(reply->isFinished());
    QCoreApplication::processEvents();
    EXPECT_TRUE(finished);
    EXPECT_TRUE(reply->readAll().isEmpty());
    return reply->error();
}

TEST(NoNetwork, EveryRequestFailsAtOnceAndNobodyIsAsked) {
    Listener listener;
    const std::unique_ptr<QNetworkAccessManager> network(NoNetwork().create(nullptr));
    EXPECT_EQ(outcome(*network, listener.picture()), QNetworkReply::ContentAccessDenied);
    EXPECT_EQ(outcome(*network, QUrl("ftp://127.0.0.1/x")), QNetworkReply::ContentAccessDenied);
    EXPECT_EQ(outcome(*network, QUrl::fromLocalFile("/etc/hostname")), QNetworkReply::ContentAccessDenied);
    EXPECT_EQ(listener.visitors(), 0);
}

TEST(NoNetwork, APictureInAViewStaysAway) {
    Listener listener;
    NoNetwork none;
    QQmlEngine engine;
    engine.setNetworkAccessManagerFactory(&none);
    engine.setOutputWarningsToStandardError(false);
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nImage { }", QUrl());
    const std::unique_ptr<QObject> image(component.create());
    ASSERT_TRUE(image);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("asks nothing of the network"));
    image->setProperty("source", listener.picture());
    constexpr int error = 3;
    EXPECT_TRUE(QTest::qWaitFor([&] { return image->property("status").toInt() == error; }, 60'000));
    EXPECT_EQ(listener.visitors(), 0);
}

struct QtSurfacesTest : testing::Test, ClockWorld {
    QtSurfaces surfaces_{{.log = machine_.log,
                          .windowSystem = machine_.windowSystem,
                          .desktop = machine_.desktop,
                          .theme = theme_,
                          .clock = *presenter_,
                          .widgetContent = nullptr}};
};

TEST_F(QtSurfacesTest, ViewsHaveNoNetwork) {
    Listener listener;
    const auto view = surfaces_.makeView("ContentView", *presenter_);
    auto& network = *qmlEngine(view.get())->networkAccessManager();
    EXPECT_EQ(outcome(network, listener.picture()), QNetworkReply::ContentAccessDenied);
    EXPECT_EQ(listener.visitors(), 0);
}

TEST_F(QtSurfacesTest, AHintIsPlainText) {
    surfaces_.showHint("<b>hola</b> <img src='file:///nowhere'>");
    QLabel* hint = nullptr;
    for (auto* widget : QApplication::topLevelWidgets()) {
        if (auto* label = qobject_cast<QLabel*>(widget)) hint = label;
    }
    ASSERT_NE(hint, nullptr);
    EXPECT_EQ(hint->textFormat(), Qt::PlainText);
    delete hint;
}

}  // namespace
}  // namespace tidewatch
