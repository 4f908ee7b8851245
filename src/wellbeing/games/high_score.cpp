#include "wellbeing/games/high_score.h"

#include <utility>

namespace tidewatch {

HighScore::HighScore(platform::Preferences& preferences, std::string key)
    : preferences_(preferences), key_(std::move(key)), best_(preferences_.integer(key_)) {}

void HighScore::enter(std::int64_t score) {
    if (score <= best_) return;
    best_ = score;
    preferences_.setInteger(key_, score);
}

}  // namespace tidewatch
