#include "tests/platform/qt/loopback_server.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <utility>

namespace tidewatch::platform {

LoopbackCertificate::LoopbackCertificate() {
    const test::TemporaryDirectory directory;
    const auto path = QString::fromStdString(directory.path());
    QProcess tool;
    tool.start("openssl",
               {"req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes",
                "-days", "2", "-subj", "/CN=loopback", "-addext", "subjectAltName=IP:127.0.0.1", "-keyout",
                path + "/key.pem", "-out", path + "/certificate.pem"});
    constexpr int patience = 120'000;
    EXPECT_TRUE(tool.waitForFinished(patience) && tool.exitCode() == 0)
        << tool.readAllStandardError().toStdString();
    certificate = QByteArray::fromStdString(directory.read("certificate.pem"));
    key = QByteArray::fromStdString(directory.read("key.pem"));
}

LoopbackServer::LoopbackServer(const LoopbackCertificate& certificate, Script script)
    : script_(std::move(script)) {
    auto configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(QSslCertificate(certificate.certificate));
    configuration.setPrivateKey(QSslKey(certificate.key, QSsl::Ec));
    configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
    server_.setSslConfiguration(configuration);
    EXPECT_TRUE(server_.listen(QHostAddress::LocalHost));
    QObject::connect(&server_, &QSslServer::pendingConnectionAvailable, &server_, [this] {
        while (auto* client = qobject_cast<QSslSocket*>(server_.nextPendingConnection())) {
            const auto receive = [this, client, request = QByteArray()]() mutable {
                request += client->readAll();
                if (!request.contains("\r\n\r\n")) return;
                requests_.push_back(std::exchange(request, {}));
                script_(*client, requests_.back());
            };
            QObject::connect(client, &QSslSocket::readyRead, client, receive);
            if (client->bytesAvailable() > 0) client->readyRead();
        }
    });
}

std::string LoopbackServer::url(const std::string& path) const {
    return "https://127.0.0.1:" + std::to_string(port()) + path;
}

QByteArray responseHead(qint64 length, const QByteArray& status) {
    const auto announced =
        length < 0 ? QByteArray() : "Content-Length: " + QByteArray::number(length) + "\r\n";
    return "HTTP/1.1 " + status + "\r\nContent-Type: application/octet-stream\r\n" + announced +
           "Connection: close\r\n\r\n";
}

}  // namespace tidewatch::platform
