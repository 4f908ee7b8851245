#pragma once

#include <qqmlregistration.h>
#include <QObject>

#include "base/signal.h"
#include "wellbeing/games/breakout_model.h"
#include "wellbeing/views/games/game_number.h"
#include "wellbeing/views/games/game_presenter.h"

namespace tidewatch {

/// The display values of the brick game; its field draws the board from the model itself.
class BreakoutPresenter final : public tidewatch::GamePresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the panel")
    Q_PROPERTY(tidewatch::GameNumber lives READ lives NOTIFY numbersChanged FINAL)
    Q_PROPERTY(tidewatch::GameNumber level READ level NOTIFY numbersChanged FINAL)
    Q_PROPERTY(tidewatch::GameNumber best READ best NOTIFY numbersChanged FINAL)

public:
    /// All of `sources` must outlive this object.
    explicit BreakoutPresenter(const BreakoutModel::Sources& sources, QObject* parent = nullptr);

    [[nodiscard]] const BreakoutModel& model() const { return model_; }

    [[nodiscard]] GameNumber lives() const { return lives_; }
    [[nodiscard]] GameNumber level() const { return level_; }
    [[nodiscard]] GameNumber best() const { return best_; }

    /// Centres the paddle at this x of the field.
    void setPaddle(double x) { model_.setPaddle(x); }

    void start() override;
    void stop() override { model_.stop(); }

Q_SIGNALS:
    /// Something on the board may have changed.
    void boardChanged();
    void numbersChanged();

private:
    void sync();
    void togglePlayPause() override { model_.togglePlayPause(); }
    [[nodiscard]] Box box() const;
    [[nodiscard]] Course course() const;

    BreakoutModel model_;
    GameNumber lives_;
    GameNumber level_;
    GameNumber best_;
    /// What the texts were made from; most steps change none of it.
    struct Shown {
        BreakoutModel::State state = BreakoutModel::State::idle;
        bool launched = false;
        std::int64_t score = 0;
        int lives = 0;
        int level = 0;
        std::int64_t best = 0;
        bool operator==(const Shown&) const = default;
    };
    Shown shown_;
    Connection changed_;
};

}  // namespace tidewatch
