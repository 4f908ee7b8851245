#include "platform/qt/http_exchange.h"

#include <QNetworkProxy>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <array>
#include <utility>

namespace tidewatch::platform {

namespace {

struct Words {
    QNetworkReply::NetworkError error;
    const char* text;
};

constexpr char timedOut[] = "El servidor dejó de responder";

// What can happen between here and a server; the toolkit has words for the rest.
constexpr auto words = std::to_array<Words>({
    {QNetworkReply::ConnectionRefusedError, "El servidor rechazó la conexión"},
    {QNetworkReply::RemoteHostClosedError, "El servidor cortó la conexión"},
    {QNetworkReply::HostNotFoundError, "No se encontró el servidor. ¿Hay conexión a internet?"},
    {QNetworkReply::TimeoutError, timedOut},
    {QNetworkReply::SslHandshakeFailedError, "No se pudo establecer una conexión segura"},
    {QNetworkReply::TemporaryNetworkFailureError, "Se perdió la conexión a la red"},
    {QNetworkReply::NetworkSessionFailedError, "No hay conexión a la red"},
    {QNetworkReply::UnknownNetworkError, "No hay conexión con el servidor"},
    {QNetworkReply::TooManyRedirectsError, "El servidor remite a otra dirección"},
    {QNetworkReply::InsecureRedirectError, "El servidor remite a otra dirección"},
    {QNetworkReply::ProtocolFailure, "El servidor respondió algo incomprensible"},
});

std::string textOf(const QNetworkReply& reply) {
    for (const auto& row : words) {
        if (row.error == reply.error()) return row.text;
    }
    return reply.errorString().toStdString();
}

// Such a response is complete; the toolkit takes its status for a failure.
bool isAboutStatus(QNetworkReply::NetworkError error) {
    const bool isAboutContent =
        error >= QNetworkReply::ContentAccessDenied && error <= QNetworkReply::UnknownContentError;
    const bool isAboutServer =
        error >= QNetworkReply::InternalServerError && error <= QNetworkReply::UnknownServerError;
    return isAboutContent || isAboutServer || error == QNetworkReply::ProtocolInvalidOperationError;
}

}  // namespace

HttpAudience::HttpAudience(MainLoop& mainLoop, HttpListener listener)
    : mainLoop_(mainLoop), listener_(std::move(listener)) {}

void HttpAudience::tellReceived(const std::shared_ptr<HttpAudience>& audience, std::size_t bytes) {
    if (audience->untold_.fetch_add(bytes) != 0) return;
    audience->mainLoop_.post([audience] {
        const auto untold = audience->untold_.exchange(0);
        if (audience->isPresent_) audience->listener_.received(untold);
    });
}

void HttpAudience::tellEnd(const std::shared_ptr<HttpAudience>& audience,
                           std::optional<HttpFailure> failure) {
    audience->mainLoop_.post([audience, failure = std::move(failure)] {
        if (std::exchange(audience->isPresent_, false)) audience->listener_.ended(failure);
    });
}

HttpExchange::HttpExchange(const QNetworkRequest& request, std::chrono::milliseconds timeOut,
                           std::shared_ptr<HttpAudience> audience)
    : request_(request), timeOut_(timeOut), audience_(std::move(audience)) {}

HttpExchange::~HttpExchange() {
    // Its end would be told to an object that is half gone.
    if (reply_) reply_->disconnect(this);
}

void HttpExchange::start(const std::string& authorities) {
    if (!authorities.empty()) {
        auto configuration = QSslConfiguration::defaultConfiguration();
        configuration.setCaCertificates(QSslCertificate::fromData(QByteArray::fromStdString(authorities)));
        request_.setSslConfiguration(configuration);
    }
    network_ = std::make_unique<QNetworkAccessManager>();
    network_->setProxy(QNetworkProxy::NoProxy);
    silence_ = std::make_unique<QTimer>();
    silence_->setSingleShot(true);
    connect(silence_.get(), &QTimer::timeout, this, [this] {
        isTimedOut_ = true;
        reply_->abort();
    });
    silence_->start(timeOut_);
    reply_ = network_->get(request_);
    connect(reply_, &QNetworkReply::readyRead, this, &HttpExchange::receive);
    connect(reply_, &QNetworkReply::finished, this, &HttpExchange::finish);
}

void HttpExchange::receive() {
    const auto bytes = reply_->skip(reply_->bytesAvailable());
    if (bytes <= 0) return;
    silence_->start(timeOut_);
    HttpAudience::tellReceived(audience_, static_cast<std::size_t>(bytes));
}

void HttpExchange::finish() {
    silence_->stop();
    HttpAudience::tellEnd(audience_, failure());
    // Its thread ends with it, while the transfer may be kept. The reply, which belongs to it, is calling.
    reply_ = nullptr;
    network_.release()->deleteLater();
}

std::optional<HttpFailure> HttpExchange::failure() const {
    if (isCancelled_) return HttpFailure{true, "Cancelado"};
    if (isTimedOut_) return HttpFailure{false, timedOut};
    if (reply_->error() == QNetworkReply::NoError || isAboutStatus(reply_->error())) return std::nullopt;
    return HttpFailure{false, textOf(*reply_)};
}

void HttpExchange::cancel() {
    if (!std::exchange(isCancelled_, true) && reply_) reply_->abort();
}

}  // namespace tidewatch::platform
