#pragma once

#include <utility>
#include <vector>

#include "platform/api/http_client.h"
#include "platform/api/main_loop.h"

namespace tidewatch::platform {

/// A network in which the test plays the server.
class FakeHttpClient final : public HttpClient {
    struct Request {
        std::string url;
        std::chrono::milliseconds timeOut;
        HttpListener listener;
        bool isOpen = true;
    };

public:
    /// `mainLoop` must outlive it.
    explicit FakeHttpClient(MainLoop& mainLoop) : mainLoop_(mainLoop) {}

    [[nodiscard]] std::unique_ptr<HttpTransfer> get(const std::string& url, std::chrono::milliseconds timeOut,
                                                    HttpListener listener) override {
        if (refusesUrls) return nullptr;
        requests_.push_back(std::make_shared<Request>(Request{url, timeOut, std::move(listener)}));
        return std::make_unique<Transfer>(mainLoop_, requests_.back());
    }

    [[nodiscard]] std::size_t requestCount() const { return requests_.size(); }
    [[nodiscard]] const std::string& url(std::size_t index) const { return requests_.at(index)->url; }
    [[nodiscard]] std::chrono::milliseconds timeOut(std::size_t index) const {
        return requests_.at(index)->timeOut;
    }
    [[nodiscard]] bool isOpen(std::size_t index) const { return requests_.at(index)->isOpen; }

    /// The server of the last request sends bytes, or ends.
    void send(std::size_t bytes) const {
        if (const auto request = requests_.back(); request->isOpen) request->listener.received(bytes);
    }
    void end(const std::optional<HttpFailure>& failure = std::nullopt) const {
        end(requests_.back(), failure);
    }

    bool refusesUrls = false;

private:
    static void end(const std::shared_ptr<Request>& request, const std::optional<HttpFailure>& failure) {
        if (std::exchange(request->isOpen, false)) request->listener.ended(failure);
    }

    class Transfer final : public HttpTransfer {
    public:
        Transfer(MainLoop& mainLoop, std::shared_ptr<Request> request)
            : mainLoop_(mainLoop), request_(std::move(request)) {}
        ~Transfer() override { request_->isOpen = false; }
        void cancel() override {
            mainLoop_.post([request = request_] { end(request, HttpFailure{true, "cancelled"}); });
        }

    private:
        MainLoop& mainLoop_;
        const std::shared_ptr<Request> request_;
    };

    MainLoop& mainLoop_;
    std::vector<std::shared_ptr<Request>> requests_;
};

}  // namespace tidewatch::platform
