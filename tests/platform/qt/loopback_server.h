#pragma once

#include <QByteArray>
#include <QSslServer>
#include <QSslSocket>
#include <QUrl>
#include <functional>
#include <string>
#include <vector>

#include "support/temporary_directory.h"

namespace tidewatch::platform {

/// A certificate for this machine, which is its own authority.
struct LoopbackCertificate {
    /// Fails the current test if it cannot be made.
    LoopbackCertificate();

    QByteArray certificate;  ///< PEM
    QByteArray key;          ///< PEM
};

/// An HTTPS server on the loopback, as the test scripts it. Runs on the thread of its test.
class LoopbackServer final {
public:
    /// Called with each complete request; the socket closes itself at the end of the server.
    using Script = std::function<void(QSslSocket& client, const QByteArray& request)>;

    LoopbackServer(const LoopbackCertificate& certificate, Script script);

    [[nodiscard]] std::string url(const std::string& path = "/") const;
    [[nodiscard]] quint16 port() const { return server_.serverPort(); }
    [[nodiscard]] const std::vector<QByteArray>& requests() const { return requests_; }
    /// Refuses connections from now on.
    void close() { server_.close(); }

private:
    QSslServer server_;
    Script script_;
    std::vector<QByteArray> requests_;
};

/// The head of a response with this length; none is announced for a negative one.
[[nodiscard]] QByteArray responseHead(qint64 length, const QByteArray& status = "200 OK");

}  // namespace tidewatch::platform
