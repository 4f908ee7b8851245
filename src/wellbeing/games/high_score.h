#pragma once

#include <cstdint>
#include <string>

#include "platform/api/preferences.h"

namespace tidewatch {

/// The best score of a game, in the preferences. Main thread only.
class HighScore final {
public:
    /// Reads the stored score; 0 if there is none. `preferences` must outlive this object.
    HighScore(platform::Preferences& preferences, std::string key);

    [[nodiscard]] std::int64_t best() const { return best_; }

    /// Stores `score` if it is better.
    void enter(std::int64_t score);

private:
    platform::Preferences& preferences_;
    const std::string key_;
    std::int64_t best_;
};

}  // namespace tidewatch
