#pragma once

#include <qqmlregistration.h>
#include <QObject>
#include <QString>
#include <cstdint>
#include <functional>
#include <vector>

#include "base/signal.h"
#include "ui/models/row_list.h"
#include "wellbeing/games/game_model.h"
#include "wellbeing/views/games/game_control.h"
#include "wellbeing/views/games/game_number.h"

namespace tidewatch {

/// What the panel shows of either game: the box over its board, the score, the numbers and the controls. Its
/// field draws the board from the model itself. Notifies only of changes. Main thread only.
class GamePresenter : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("What the presenters of the games are")
    // The box over the board; without a title there is none.
    Q_PROPERTY(QString overlayTitle READ overlayTitle NOTIFY overlayChanged FINAL)
    Q_PROPERTY(QString overlayText READ overlayText NOTIFY overlayChanged FINAL)
    Q_PROPERTY(QString accessibleText READ accessibleText NOTIFY overlayChanged FINAL)
    Q_PROPERTY(QString scoreText READ scoreText NOTIFY scoreChanged FINAL)
    Q_PROPERTY(QString scoreAccessibleText READ scoreAccessibleText NOTIFY scoreChanged FINAL)
    Q_PROPERTY(tidewatch::GameNumber level READ level NOTIFY numbersChanged FINAL)
    Q_PROPERTY(tidewatch::GameNumber best READ best NOTIFY numbersChanged FINAL)
    Q_PROPERTY(bool over READ over NOTIFY overChanged FINAL)
    /// From left to right.
    Q_PROPERTY(tidewatch::RowListModel* controls READ controls CONSTANT FINAL)

public:
    [[nodiscard]] QString overlayTitle() const { return box_.title; }
    [[nodiscard]] QString overlayText() const { return box_.text; }
    [[nodiscard]] QString accessibleText() const { return box_.accessibleText; }
    [[nodiscard]] QString scoreText() const { return score_; }
    [[nodiscard]] QString scoreAccessibleText() const { return "Puntaje: " + score_; }
    [[nodiscard]] GameNumber level() const { return numbers_.level; }
    [[nodiscard]] GameNumber best() const { return numbers_.best; }
    [[nodiscard]] bool over() const { return over_; }
    [[nodiscard]] RowListModel* controls() { return &controls_; }

    /// Does what the control at this index is for; ignored for any other index.
    Q_INVOKABLE void press(int control);

    /// Starts a new game.
    void start();

    /// Pauses a running game and lets go of timer and keys.
    void stop();

Q_SIGNALS:
    /// Something on the board may have changed.
    void boardChanged();
    void overlayChanged();
    void scoreChanged();
    void numbersChanged();
    void overChanged();

protected:
    /// A control after the first one, which pauses and continues.
    struct Steering {
        QString symbol;
        QString name;
        std::function<void()> act;
    };

    GamePresenter(std::vector<Steering> steering, QObject* parent);

    struct Box {
        QString title;
        QString text;
        QString accessibleText;  ///< the game and its state
        bool operator==(const Box&) const = default;
    };

    /// Must be called once the model exists: shows its state from then on.
    void follow(GameModel& game);

    /// Updates what only this game shows.
    virtual void sync() {}

    /// The game in the words of assistive technology.
    [[nodiscard]] virtual QString name() const = 0;

    /// While it is being played.
    [[nodiscard]] virtual Box boxWhilePlaying() const;

    /// What only this game counts.
    [[nodiscard]] virtual GameNumber ownNumber() const = 0;

private:
    struct Numbers {
        GameNumber own;
        GameNumber level;
        GameNumber best;
        bool operator==(const Numbers&) const = default;
    };

    void show();
    [[nodiscard]] Box box() const;
    [[nodiscard]] std::vector<GameControl> controlsNow() const;

    const std::vector<Steering> steering_;
    GameModel* game_ = nullptr;
    Box box_;
    QString score_ = "0";
    Numbers numbers_;
    bool over_ = false;
    RowList<GameControl> controls_;
    Connection changed_;
};

}  // namespace tidewatch
