#pragma once

#include <QQmlNetworkAccessManagerFactory>

namespace tidewatch {

/// The network as views have it: every request fails at once, and none of them opens a socket. For whatever a
/// view may be brought to ask for; nothing of ours asks for anything. May be used from any thread.
class NoNetwork final : public QQmlNetworkAccessManagerFactory {
public:
    [[nodiscard]] QNetworkAccessManager* create(QObject* parent) override;
};

}  // namespace tidewatch
