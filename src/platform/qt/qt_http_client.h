#pragma once

#include <QThread>
#include <memory>
#include <string>

#include "platform/api/http_client.h"
#include "platform/api/main_loop.h"

namespace tidewatch::platform {

/// Requests through the toolkit, on a thread that is started by the first one. Nothing but the request leaves
/// the machine: no cookies, no proxy, no language of the user, and redirects only within the same server.
class QtHttpClient final : public HttpClient {
public:
    /// `mainLoop` must outlive this object. Servers need a certificate of one of `authorities` (PEM), by
    /// default of those that the system trusts.
    explicit QtHttpClient(MainLoop& mainLoop, std::string authorities = "");
    ~QtHttpClient() override;
    QtHttpClient(const QtHttpClient&) = delete;
    QtHttpClient& operator=(const QtHttpClient&) = delete;

    [[nodiscard]] std::unique_ptr<HttpTransfer> get(const std::string& url, std::chrono::milliseconds timeOut,
                                                    HttpListener listener) override;

private:
    MainLoop& mainLoop_;
    const std::string authorities_;
    QThread thread_;
};

}  // namespace tidewatch::platform
