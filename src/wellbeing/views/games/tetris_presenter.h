#pragma once

#include <qqmlregistration.h>
#include <QObject>

#include "base/signal.h"
#include "wellbeing/games/tetris_model.h"
#include "wellbeing/views/games/game_number.h"
#include "wellbeing/views/games/game_presenter.h"

namespace tidewatch {

/// The display values of the falling-blocks game; its fields draw the board from the model itself.
class TetrisPresenter final : public tidewatch::GamePresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the panel")
    Q_PROPERTY(QString nextTitle READ nextTitle CONSTANT FINAL)
    Q_PROPERTY(QString nextAccessibleText READ nextAccessibleText NOTIFY nextPieceChanged FINAL)
    Q_PROPERTY(tidewatch::GameNumber lines READ lines NOTIFY numbersChanged FINAL)
    Q_PROPERTY(tidewatch::GameNumber level READ level NOTIFY numbersChanged FINAL)
    Q_PROPERTY(tidewatch::GameNumber best READ best NOTIFY numbersChanged FINAL)

public:
    /// All of `sources` must outlive this object.
    explicit TetrisPresenter(const TetrisModel::Sources& sources, QObject* parent = nullptr);

    [[nodiscard]] const TetrisModel& model() const { return model_; }

    [[nodiscard]] QString nextTitle() const { return "SIG"; }
    [[nodiscard]] QString nextAccessibleText() const;
    [[nodiscard]] GameNumber lines() const { return lines_; }
    [[nodiscard]] GameNumber level() const { return level_; }
    [[nodiscard]] GameNumber best() const { return best_; }

    void start() override;
    void stop() override { model_.stop(); }

Q_SIGNALS:
    /// Something on the board may have changed.
    void boardChanged();
    void nextPieceChanged();
    void numbersChanged();

private:
    void sync();
    void togglePlayPause() override { model_.togglePlayPause(); }
    [[nodiscard]] Box box() const;
    [[nodiscard]] Course course() const;

    TetrisModel model_;
    int nextPiece_ = 0;
    GameNumber lines_;
    GameNumber level_;
    GameNumber best_;
    Connection changed_;
};

}  // namespace tidewatch
