#pragma once

#include <qqmlregistration.h>
#include <QList>
#include <QObject>
#include <QString>
#include <cstdint>
#include <functional>
#include <vector>

#include "wellbeing/views/games/game_control.h"

namespace tidewatch {

/// What the panel shows of either game: the box over its board, the score and the controls. Notifies only of
/// changes. Main thread only.
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
    Q_PROPERTY(bool over READ over NOTIFY overChanged FINAL)
    // From left to right.
    Q_PROPERTY(QList<tidewatch::GameControl> controls READ controls NOTIFY controlsChanged FINAL)

public:
    [[nodiscard]] QString overlayTitle() const { return box_.title; }
    [[nodiscard]] QString overlayText() const { return box_.text; }
    [[nodiscard]] QString accessibleText() const { return box_.accessibleText; }
    [[nodiscard]] QString scoreText() const { return score_; }
    [[nodiscard]] QString scoreAccessibleText() const { return "Puntaje: " + score_; }
    [[nodiscard]] bool over() const { return over_; }
    [[nodiscard]] QList<GameControl> controls() const { return controls_; }

    /// Does what the control at this index is for; ignored for any other index.
    Q_INVOKABLE void press(int control);

    /// Starts a new game.
    virtual void start() = 0;

    /// Pauses a running game and lets go of timer and keys.
    virtual void stop() = 0;

Q_SIGNALS:
    void overlayChanged();
    void scoreChanged();
    void overChanged();
    void controlsChanged();

protected:
    /// A control after the first one, which pauses and continues.
    struct Steering {
        GameControl control;
        std::function<void()> act;
    };

    GamePresenter(std::vector<Steering> steering, QObject* parent);

    struct Box {
        QString title;
        QString text;
        QString accessibleText;  ///< the game and its state
        bool operator==(const Box&) const = default;
    };

    /// What a game does at the moment.
    enum class Course { standing, running, over };

    void show(const Box& box, std::int64_t score, Course course);

    virtual void togglePlayPause() = 0;

private:
    [[nodiscard]] QList<GameControl> controlsOf(Course course) const;

    const std::vector<Steering> steering_;
    Box box_;
    QString score_ = "0";
    bool over_ = false;
    QList<GameControl> controls_;
};

}  // namespace tidewatch
