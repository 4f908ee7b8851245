#pragma once

#include <QQmlNetworkAccessManagerFactory>

namespace tidewatch {

/// Network access for QML: every request fails immediately without opening a socket. Our views make no
/// requests; this guards against injected ones. Thread-safe.
class NoNetwork final : public QQmlNetworkAccessManagerFactory {
public:
    [[nodiscard]] QNetworkAccessManager* create(QObject* parent) override;
};

}  // namespace tidewatch
