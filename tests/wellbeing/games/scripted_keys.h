#pragma once

#include <map>
#include <memory>
#include <utility>

#include "wellbeing/games/key_monitor.h"

namespace tidewatch::test {

/// A keyboard that the test presses.
class ScriptedKeys final : public KeyMonitor {
public:
    [[nodiscard]] std::unique_ptr<KeyObservation> observe(Handler handler) override {
        const auto id = next_++;
        observers_->emplace(id, std::make_shared<Handler>(std::move(handler)));
        return std::make_unique<Observation>(observers_, id);
    }

    /// The first observer that consumes the press keeps it from the others.
    KeyPress press(GameKey key) {
        const auto observers = *observers_;
        for (const auto& [id, handler] : observers) {
            if ((*handler)(key) == KeyPress::consumed) return KeyPress::consumed;
        }
        return KeyPress::passedOn;
    }

    [[nodiscard]] std::size_t observers() const { return observers_->size(); }

private:
    using Observers = std::map<int, std::shared_ptr<Handler>>;

    class Observation final : public KeyObservation {
    public:
        Observation(std::shared_ptr<Observers> observers, int id)
            : observers_(std::move(observers)), id_(id) {}
        Observation(const Observation&) = delete;
        Observation& operator=(const Observation&) = delete;
        ~Observation() override { observers_->erase(id_); }

    private:
        const std::shared_ptr<Observers> observers_;
        const int id_;
    };

    const std::shared_ptr<Observers> observers_ = std::make_shared<Observers>();
    int next_ = 0;
};

}  // namespace tidewatch::test
