#pragma once

#include <qqmlregistration.h>
#include <QObject>

#include "wellbeing/games/breakout_model.h"
#include "wellbeing/views/games/game_presenter.h"

namespace tidewatch {

/// The display values of the brick game.
class BreakoutPresenter final : public tidewatch::GamePresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the panel")
    Q_PROPERTY(tidewatch::GameNumber lives READ lives NOTIFY numbersChanged FINAL)

public:
    /// All of `sources` must outlive this object.
    explicit BreakoutPresenter(const BreakoutModel::Sources& sources, QObject* parent = nullptr);

    [[nodiscard]] const BreakoutModel& model() const { return model_; }

    [[nodiscard]] GameNumber lives() const { return ownNumber(); }

    /// Centres the paddle at this x of the field.
    void setPaddle(double x) { model_.setPaddle(x); }

private:
    [[nodiscard]] QString name() const override { return "Bricks"; }
    [[nodiscard]] Box boxWhilePlaying() const override;
    [[nodiscard]] GameNumber ownNumber() const override;

    BreakoutModel model_;
};

}  // namespace tidewatch
