#include "system/speed_tester.h"

#include <algorithm>
#include <utility>

namespace tidewatch {

namespace {

using std::chrono::duration;

// A public test of download speeds: it serves as many bytes as it is asked for. The only host that the
// program ever speaks to.
constexpr char endpoint[] = "https://speed.cloudflare.com/__down?bytes=";

constexpr std::chrono::milliseconds pingTimeOut{60'000};
constexpr std::chrono::milliseconds downloadTimeOut{40'000};
constexpr std::chrono::milliseconds samplingInterval{250};
constexpr double newShare = 0.65;  // of a sample in the smoothed speed

std::string urlFor(std::int64_t bytes) {
    return endpoint + std::to_string(bytes);
}

double mbps(double bytes, std::chrono::nanoseconds time) {
    return bytes * 8 / duration<double>(time).count() / 1e6;
}

}  // namespace

SpeedTester::SpeedTester(const Dependencies& dependencies) : dependencies_(dependencies) {}

void SpeedTester::startTest() {
    if (phase_ == Phase::downloading) return;
    ping_.reset();
    download_.reset();
    sampleTimer_.reset();
    totalBytes_ = 0;
    firstByteTime_.reset();
    currentMbps_ = peakMbps_ = avgMbps_ = pingMs_ = progress_ = 0;
    errorMessage_.clear();
    phase_ = Phase::downloading;
    changed.emit();
    measurePing();
}

void SpeedTester::measurePing() {
    const auto begin = dependencies_.clock.monotonic();
    ping_ = dependencies_.http.get(
        urlFor(0), pingTimeOut,
        {.received = [](std::size_t) {},
         .ended =
             [this, begin](const std::optional<platform::HttpFailure>& failure) {
                 if (failure && failure->isCancelled) return complete(failure);
                 // One that failed tells how long that took, and the test goes on.
                 pingMs_ = duration<double, std::milli>(dependencies_.clock.monotonic() - begin).count();
                 changed.emit();
                 startDownload();
             }});
    if (!ping_) startDownload();
}

void SpeedTester::startDownload() {
    lastSampleTime_ = dependencies_.clock.monotonic();
    lastNetBytes_ = receivedByMachine();
    download_ = dependencies_.http.get(
        urlFor(target), downloadTimeOut,
        {.received = [this](std::size_t bytes) { receive(bytes); },
         .ended = [this](const std::optional<platform::HttpFailure>& failure) { complete(failure); }});
    if (!download_) return fail("URL inválida");
    sampleTimer_ = dependencies_.mainLoop.repeat(samplingInterval, platform::TimerMode::common,
                                                 [this] { takeSample(); });
}

std::uint64_t SpeedTester::receivedByMachine() {
    const auto bytes = dependencies_.counters.interfaceBytes();
    return bytes ? bytes->received : 0;
}

void SpeedTester::takeSample() {
    const auto now = dependencies_.clock.monotonic();
    const auto time = now - lastSampleTime_;
    if (time <= Time(0)) return;
    const auto bytes = receivedByMachine();
    const auto speed = mbps(static_cast<double>(bytes - std::min(bytes, lastNetBytes_)), time);
    lastNetBytes_ = bytes;
    lastSampleTime_ = now;
    currentMbps_ = newShare * speed + (1 - newShare) * currentMbps_;
    peakMbps_ = std::max(peakMbps_, currentMbps_);
    changed.emit();
}

void SpeedTester::receive(std::size_t bytes) {
    if (!firstByteTime_) firstByteTime_ = dependencies_.clock.monotonic();
    totalBytes_ += static_cast<std::int64_t>(bytes);
    progress_ = std::min(static_cast<double>(totalBytes_) / static_cast<double>(target), 1.0);
    changed.emit();
}

void SpeedTester::complete(const std::optional<platform::HttpFailure>& failure) {
    sampleTimer_.reset();
    // One that was cancelled ends like one that is complete.
    if (failure && !failure->isCancelled) return fail(failure->message);
    if (!firstByteTime_) return fail("sin datos recibidos");
    const auto time = dependencies_.clock.monotonic() - *firstByteTime_;
    avgMbps_ = time > Time(0) ? mbps(static_cast<double>(totalBytes_), time) : 0;
    currentMbps_ = avgMbps_;
    peakMbps_ = std::max(peakMbps_, avgMbps_);
    progress_ = 1;
    phase_ = Phase::done;
    changed.emit();
}

void SpeedTester::fail(const std::string& message) {
    errorMessage_ = message;
    phase_ = Phase::failed;
    changed.emit();
}

void SpeedTester::cancel() {
    if (phase_ != Phase::downloading) return;
    sampleTimer_.reset();
    if (download_) {
        download_->cancel();
    } else if (ping_) {
        ping_->cancel();
    }
    phase_ = Phase::idle;
    changed.emit();
}

}  // namespace tidewatch
