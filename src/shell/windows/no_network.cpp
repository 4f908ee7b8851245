#include "shell/windows/no_network.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>

namespace tidewatch {
namespace {

/// Has failed from the beginning, before signals can be connected; like other replies it therefore emits them
/// later, from the event loop.
class RefusedReply final : public QNetworkReply {
public:
    RefusedReply(QNetworkAccessManager::Operation operation, const QNetworkRequest& request, QObject* parent)
        : QNetworkReply(parent) {
        setOperation(operation);
        setRequest(request);
        setUrl(request.url());
        setOpenMode(QIODevice::ReadOnly);
        setError(ContentAccessDenied, "This program asks nothing of the network.");
        setFinished(true);
        QMetaObject::invokeMethod(this, &RefusedReply::announce, Qt::QueuedConnection);
    }

    void abort() override {}

protected:
    qint64 readData(char* /*data*/, qint64 /*maxSize*/) override { return -1; }

private:
    void announce() {
        Q_EMIT errorOccurred(error());
        Q_EMIT finished();
    }
};

class RefusingManager final : public QNetworkAccessManager {
public:
    using QNetworkAccessManager::QNetworkAccessManager;

protected:
    QNetworkReply* createRequest(Operation operation, const QNetworkRequest& request,
                                 QIODevice* /*outgoing*/) override {
        return new RefusedReply(operation, request, this);
    }
};

}  // namespace

QNetworkAccessManager* NoNetwork::create(QObject* parent) {
    return new RefusingManager(parent);
}

}  // namespace tidewatch
