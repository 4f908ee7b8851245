#include "platform/qt/qt_http_client.h"

#include <QNetworkRequest>
#include <QUrl>
#include <utility>

#include "platform/qt/http_exchange.h"

namespace tidewatch::platform {

namespace {

constexpr int maxRedirects = 5;

QNetworkRequest requestFor(const QUrl& url) {
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    // Its small windows would limit what a fast line delivers.
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::SameOriginRedirectPolicy);
    request.setMaximumRedirectsAllowed(maxRedirects);
    request.setHeader(QNetworkRequest::UserAgentHeader, "Tidewatch");
    // Otherwise the toolkit tells the user's language, and unpacks what it receives before it is counted.
    request.setRawHeader("Accept-Language", "*");
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

class Transfer final : public HttpTransfer {
public:
    Transfer(HttpExchange* exchange, std::shared_ptr<HttpAudience> audience)
        : exchange_(exchange), audience_(std::move(audience)) {}
    Transfer(const Transfer&) = delete;
    Transfer& operator=(const Transfer&) = delete;
    ~Transfer() override {
        audience_->leave();
        exchange_->deleteLater();  // in its thread
    }

    void cancel() override {
        QMetaObject::invokeMethod(exchange_, &HttpExchange::cancel, Qt::QueuedConnection);
    }

private:
    HttpExchange* const exchange_;
    const std::shared_ptr<HttpAudience> audience_;
};

}  // namespace

QtHttpClient::QtHttpClient(MainLoop& mainLoop, std::string authorities)
    : mainLoop_(mainLoop), authorities_(std::move(authorities)) {
    thread_.setObjectName("http");
}

QtHttpClient::~QtHttpClient() {
    thread_.quit();
    thread_.wait();
}

std::unique_ptr<HttpTransfer> QtHttpClient::get(const std::string& url, std::chrono::milliseconds timeOut,
                                                HttpListener listener) {
    const QUrl parsed(QString::fromStdString(url), QUrl::StrictMode);
    if (!parsed.isValid() || parsed.scheme() != "https" || parsed.host().isEmpty()) return nullptr;
    auto audience = std::make_shared<HttpAudience>(mainLoop_, std::move(listener));
    auto* exchange = new HttpExchange(requestFor(parsed), timeOut, audience);
    exchange->moveToThread(&thread_);
    if (!thread_.isRunning()) thread_.start();
    // There, because preparing encryption takes a while.
    QMetaObject::invokeMethod(
        exchange, [exchange, authorities = authorities_] { exchange->start(authorities); },
        Qt::QueuedConnection);
    return std::make_unique<Transfer>(exchange, std::move(audience));
}

}  // namespace tidewatch::platform
