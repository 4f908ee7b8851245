#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/background_reading.h"

namespace tidewatch::platform {

/// The load of the graphics processors, as fractions: what the driver counts (AMD), the time that it has not
/// slept since the last question (Intel), what its library tells (NVIDIA). One that is switched off has none,
/// and is not woken. Not thread-safe.
class GpuFigures final {
public:
    /// Asks the management library of NVIDIA; runs on another thread, one call at a time.
    using AskLibrary = std::function<std::vector<double>()>;
    using Now = std::function<std::chrono::steady_clock::time_point()>;

    /// `sysDirectory` is /sys.
    explicit GpuFigures(std::string sysDirectory, AskLibrary askLibrary,
                        Now now = std::chrono::steady_clock::now);

    [[nodiscard]] std::vector<double> read();

private:
    /// The time that a part of a processor has slept.
    struct Sleep {
        std::chrono::milliseconds slept;
        std::chrono::steady_clock::time_point when;
    };

    void readCards(std::vector<double>& figures);
    void readLibrary(std::vector<double>& figures);
    [[nodiscard]] static std::optional<double> busyShare(const std::string& card);
    [[nodiscard]] std::optional<double> awakeShare(const std::string& card);

    const std::string sysDirectory_;
    const AskLibrary askLibrary_;
    const Now now_;
    std::map<std::string, Sleep> lastSleeps_;  // by file
    BackgroundReading<std::vector<double>> library_;
};

}  // namespace tidewatch::platform
