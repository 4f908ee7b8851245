#pragma once

#include <qqmlregistration.h>
#include <QObject>

#include "wellbeing/games/tetris_model.h"
#include "wellbeing/views/games/game_presenter.h"

namespace tidewatch {

/// The display values of the falling-blocks game.
class TetrisPresenter final : public tidewatch::GamePresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the panel")
    Q_PROPERTY(QString nextTitle READ nextTitle CONSTANT FINAL)
    Q_PROPERTY(QString nextAccessibleText READ nextAccessibleText NOTIFY nextPieceChanged FINAL)
    Q_PROPERTY(tidewatch::GameNumber lines READ lines NOTIFY numbersChanged FINAL)

public:
    /// All of `sources` must outlive this object.
    explicit TetrisPresenter(const TetrisModel::Sources& sources, QObject* parent = nullptr);

    [[nodiscard]] const TetrisModel& model() const { return model_; }

    [[nodiscard]] QString nextTitle() const { return "SIG"; }
    [[nodiscard]] QString nextAccessibleText() const;
    [[nodiscard]] GameNumber lines() const { return ownNumber(); }

Q_SIGNALS:
    void nextPieceChanged();

private:
    void sync() override;
    [[nodiscard]] QString name() const override { return "Tetris"; }
    [[nodiscard]] GameNumber ownNumber() const override;

    TetrisModel model_;
    int nextPiece_ = 0;
};

}  // namespace tidewatch
