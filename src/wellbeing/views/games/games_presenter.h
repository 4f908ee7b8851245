#pragma once

#include <qqmlregistration.h>
#include <QObject>
#include <QString>
#include <memory>

#include "base/signal.h"
#include "platform/api/main_loop.h"
#include "ui/models/tab_presenter.h"
#include "wellbeing/game_gate.h"
#include "wellbeing/views/games/breakout_presenter.h"
#include "wellbeing/views/games/tetris_presenter.h"

namespace tidewatch {

/// The mini-arcade: shows the game gate, or while a game session runs the chosen game. Owns both games. While
/// visible it refreshes the gate once a second; when hidden it ends its session. Main thread only.
class GamesPresenter final : public tidewatch::TabPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QString accessibleText READ accessibleText CONSTANT FINAL)
    Q_PROPERTY(QString title READ title NOTIFY gameChanged FINAL)
    Q_PROPERTY(QString playText READ playText NOTIFY gameChanged FINAL)
    Q_PROPERTY(Game game READ game NOTIFY gameChanged FINAL)
    Q_PROPERTY(Face face READ face NOTIFY faceChanged FINAL)
    // The gate's face.
    Q_PROPERTY(QString gateSymbol READ gateSymbol NOTIFY faceChanged FINAL)
    Q_PROPERTY(QString gateTitle READ gateTitle NOTIFY faceChanged FINAL)
    Q_PROPERTY(QString gateLine READ gateLine NOTIFY faceChanged FINAL)
    Q_PROPERTY(QString timeText READ timeText NOTIFY timeTextChanged FINAL)
    Q_PROPERTY(double chargeProgress READ chargeProgress NOTIFY chargeProgressChanged FINAL)
    Q_PROPERTY(QString chargeText READ chargeText NOTIFY chargeProgressChanged FINAL)
    Q_PROPERTY(QString previousText READ previousText CONSTANT FINAL)
    Q_PROPERTY(QString nextText READ nextText CONSTANT FINAL)
    Q_PROPERTY(QString leaveText READ leaveText CONSTANT FINAL)
    // The games.
    Q_PROPERTY(tidewatch::TetrisPresenter* tetris READ tetris CONSTANT FINAL)
    Q_PROPERTY(tidewatch::BreakoutPresenter* breakout READ breakout CONSTANT FINAL)
    Q_PROPERTY(tidewatch::GamePresenter* current READ current NOTIFY gameChanged FINAL)

public:
    enum Game { Tetris, Breakout };
    Q_ENUM(Game)
    enum Face { Charging, Locked, Ready, Playing };
    Q_ENUM(Face)

    /// All of it must outlive this object.
    struct Sources {
        platform::MainLoop& mainLoop;
        platform::Preferences& preferences;
        platform::Randomness& randomness;
        KeyMonitor& keys;
        GameGate& gate;
    };

    explicit GamesPresenter(const Sources& sources);

    [[nodiscard]] QString accessibleText() const { return "Mini-Arcade"; }
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString playText() const { return "JUGAR " + title(); }
    [[nodiscard]] Game game() const { return game_; }
    [[nodiscard]] Face face() const { return face_; }
    [[nodiscard]] QString gateSymbol() const;
    [[nodiscard]] QString gateTitle() const;
    [[nodiscard]] QString gateLine() const;
    [[nodiscard]] QString timeText() const { return timeText_; }
    /// 0 to 1.
    [[nodiscard]] double chargeProgress() const { return chargeProgress_; }
    [[nodiscard]] QString chargeText() const;
    [[nodiscard]] QString previousText() const { return "Juego anterior"; }
    [[nodiscard]] QString nextText() const { return "Juego siguiente"; }
    [[nodiscard]] QString leaveText() const { return "Salir"; }
    [[nodiscard]] TetrisPresenter* tetris() { return &tetris_; }
    [[nodiscard]] BreakoutPresenter* breakout() { return &breakout_; }
    [[nodiscard]] GamePresenter* current();

    /// Chooses the other game. Ignored during a session.
    Q_INVOKABLE void switchGame();

    /// Spends the earned game and starts the chosen one. Ignored unless a game was earned.
    Q_INVOKABLE void play();

    /// Ends the session.
    Q_INVOKABLE void leave();

Q_SIGNALS:
    void gameChanged();
    void faceChanged();
    void timeTextChanged();
    void chargeProgressChanged();

protected:
    void update() override;
    void visibilityChanged() override;

private:
    void appear();
    void disappear();
    [[nodiscard]] Face faceOfGate() const;
    [[nodiscard]] QString timeOf(Face face) const;

    platform::MainLoop& mainLoop_;
    GameGate& gate_;
    TetrisPresenter tetris_;
    BreakoutPresenter breakout_;
    Game game_ = Tetris;
    Face face_ = Charging;
    QString timeText_;
    double chargeProgress_ = 0;
    std::unique_ptr<platform::RepeatingTimer> refresh_;
    Connection changed_;
};

}  // namespace tidewatch
