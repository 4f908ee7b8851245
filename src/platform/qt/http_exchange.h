#pragma once

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QObject>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "platform/api/http_client.h"
#include "platform/api/main_loop.h"

namespace tidewatch::platform {

/// Through which an exchange tells its listener on the main thread, until the latter is gone.
class HttpAudience final {
public:
    /// `mainLoop` must outlive the exchange.
    HttpAudience(MainLoop& mainLoop, HttpListener listener);

    /// Tells nothing any more. Main thread only.
    void leave() { isPresent_ = false; }

    // Any one thread; what arrives faster than the main thread takes it is told in one piece.
    static void tellReceived(const std::shared_ptr<HttpAudience>& audience, std::size_t bytes);
    static void tellEnd(const std::shared_ptr<HttpAudience>& audience, std::optional<HttpFailure> failure);

private:
    MainLoop& mainLoop_;
    const HttpListener listener_;
    bool isPresent_ = true;  // main thread only
    std::atomic<std::size_t> untold_ = 0;
};

/// One request and its response, in the thread that it is moved to after its creation.
class HttpExchange final : public QObject {
public:
    HttpExchange(const QNetworkRequest& request, std::chrono::milliseconds timeOut,
                 std::shared_ptr<HttpAudience> audience);
    ~HttpExchange() override;

    // In its thread. See QtHttpClient on `authorities`.
    void start(const std::string& authorities);
    /// After start().
    void cancel();

private:
    void receive();
    void finish();
    [[nodiscard]] std::optional<HttpFailure> failure() const;

    QNetworkRequest request_;
    const std::chrono::milliseconds timeOut_;
    const std::shared_ptr<HttpAudience> audience_;
    // Made in its thread, and null again after the end. The reply belongs to the network.
    std::unique_ptr<QNetworkAccessManager> network_;
    std::unique_ptr<QTimer> silence_;
    QNetworkReply* reply_ = nullptr;
    bool isCancelled_ = false;
    bool isTimedOut_ = false;
};

}  // namespace tidewatch::platform
