#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/api/machine_counters.h"
#include "platform/linux/background_reading.h"

namespace tidewatch::platform {

/// The networks of wireless interfaces. Drivers may take their time, so that they are asked in the
/// background. Not thread-safe.
class WirelessLinks final {
public:
    /// Asks a driver; runs on another thread, one call at a time.
    using Ask = std::function<std::optional<WirelessLink>(const std::string& interfaceName)>;

    explicit WirelessLinks(Ask ask) : ask_(std::move(ask)) {}

    /// What is known of an interface by now; nullopt before the first answer. Asks again.
    [[nodiscard]] std::optional<std::optional<WirelessLink>> latest(const std::string& interfaceName) {
        const auto answer = reading_.latest([ask = ask_, interfaceName] {
            return Answer{.interfaceName = interfaceName, .link = ask(interfaceName)};
        });
        if (!answer || answer->interfaceName != interfaceName) return std::nullopt;
        return answer->link;
    }

private:
    struct Answer {
        std::string interfaceName;
        std::optional<WirelessLink> link;
    };

    const Ask ask_;
    BackgroundReading<Answer> reading_;
};

}  // namespace tidewatch::platform
