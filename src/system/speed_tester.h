#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "base/signal.h"
#include "platform/api/clock.h"
#include "platform/api/http_client.h"
#include "platform/api/machine_counters.h"
#include "platform/api/main_loop.h"

namespace tidewatch {

/// Measures the download speed of the line when asked: the latency by a small request, then one large
/// download. The live speed is that of all the machine's traffic, the final one that of the download. Main
/// thread only.
class SpeedTester final {
public:
    enum class Phase { idle, downloading, done, failed };

    /// All of it must outlive the tester.
    struct Dependencies {
        const platform::Clock& clock;
        platform::MainLoop& mainLoop;
        platform::MachineCounters& counters;
        platform::HttpClient& http;
    };

    /// The bytes that a test downloads.
    static constexpr std::int64_t target = 80'000'000;

    explicit SpeedTester(const Dependencies& dependencies);
    SpeedTester(const SpeedTester&) = delete;
    SpeedTester& operator=(const SpeedTester&) = delete;

    /// Emitted after each change of the observable fields.
    Signal<> changed;

    [[nodiscard]] Phase phase() const { return phase_; }
    [[nodiscard]] double currentMbps() const { return currentMbps_; }  ///< smoothed; megabits per second
    [[nodiscard]] double peakMbps() const { return peakMbps_; }        ///< the greatest current speed
    [[nodiscard]] double avgMbps() const { return avgMbps_; }    ///< of the download; 0 until it is done
    [[nodiscard]] double pingMs() const { return pingMs_; }      ///< milliseconds
    [[nodiscard]] double progress() const { return progress_; }  ///< of `target`, from 0 to 1
    [[nodiscard]] const std::string& errorMessage() const { return errorMessage_; }  ///< of the last failure

    /// Starts a test with all figures at 0; ignored during one.
    void startTest();

    /// Ends a test early: it is idle until the network has let go of it, then done with what was received, or
    /// failed if that is nothing.
    void cancel();

private:
    using Time = std::chrono::nanoseconds;  // monotonic

    void measurePing();
    void startDownload();
    void takeSample();
    void receive(std::size_t bytes);
    void complete(const std::optional<platform::HttpFailure>& failure);
    void fail(const std::string& message);
    [[nodiscard]] std::uint64_t receivedByMachine();

    Dependencies dependencies_;
    Phase phase_ = Phase::idle;
    double currentMbps_ = 0;
    double peakMbps_ = 0;
    double avgMbps_ = 0;
    double pingMs_ = 0;
    double progress_ = 0;
    std::string errorMessage_;
    std::optional<Time> firstByteTime_;
    std::int64_t totalBytes_ = 0;
    std::uint64_t lastNetBytes_ = 0;
    Time lastSampleTime_{};
    std::unique_ptr<platform::RepeatingTimer> sampleTimer_;
    std::unique_ptr<platform::HttpTransfer> ping_;
    std::unique_ptr<platform::HttpTransfer> download_;
};

}  // namespace tidewatch
