#include "wellbeing/views/games/game_presenter.h"

#include <utility>

namespace tidewatch {

GamePresenter::GamePresenter(std::vector<Steering> steering, QObject* parent)
    : QObject(parent), steering_(std::move(steering)) {}

void GamePresenter::press(int control) {
    if (control == 0) {
        togglePlayPause();
    } else if (control > 0 && control <= static_cast<int>(steering_.size())) {
        steering_[static_cast<std::size_t>(control - 1)].act();
    }
}

void GamePresenter::show(const Box& box, std::int64_t score, Course course) {
    if (std::exchange(box_, box) != box) Q_EMIT overlayChanged();
    const auto digits = QString::number(score);
    if (std::exchange(score_, digits) != digits) Q_EMIT scoreChanged();
    const bool over = course == Course::over;
    if (std::exchange(over_, over) != over) Q_EMIT overChanged();
    const auto controls = controlsOf(course);
    if (std::exchange(controls_, controls) != controls) Q_EMIT controlsChanged();
}

QList<GameControl> GamePresenter::controlsOf(Course course) const {
    QList<GameControl> controls{course == Course::running ? GameControl{"pause.fill", "Pausa"}
                                                          : GameControl{"play.fill", "Continuar"}};
    for (const auto& each : steering_) controls.append(each.control);
    return controls;
}

}  // namespace tidewatch
