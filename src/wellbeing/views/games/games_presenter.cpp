#include "wellbeing/views/games/games_presenter.h"

#include <array>
#include <chrono>
#include <variant>

#include "base/duration_format.h"
#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

struct GateTexts {
    const char* symbol;
    const char* title;
    const char* line;
};

/// In the order of the faces; a running game hides the gate.
constexpr std::array gateTexts{
    GateTexts{"hourglass", "DESBLOQUEA JUGANDO", "1 hora de trabajo = 1 partida"},
    GateTexts{"lock.fill", "EN PAUSA", "A trabajar — el premio regresa"},
    GateTexts{"gift.fill", "¡PARTIDA LISTA!", "Te ganaste un respiro"},
    GateTexts{"", "", ""},
};

const GateTexts& textsOf(GamesPresenter::Face face) {
    return gateTexts.at(static_cast<std::size_t>(face));
}

}  // namespace

GamesPresenter::GamesPresenter(const Sources& sources)
    : mainLoop_(sources.mainLoop),
      gate_(sources.gate),
      tetris_({sources.mainLoop, sources.preferences, sources.randomness, sources.keys}),
      breakout_({sources.mainLoop, sources.preferences, sources.randomness, sources.keys}),
      changed_(sources.gate.changed.connect([this] { updateIfVisible(); })) {}

QString GamesPresenter::title() const {
    return game_ == Tetris ? "TETRIS" : "BRICKS";
}

QString GamesPresenter::gateSymbol() const {
    return textsOf(face_).symbol;
}

QString GamesPresenter::gateTitle() const {
    return textsOf(face_).title;
}

QString GamesPresenter::gateLine() const {
    return textsOf(face_).line;
}

QString GamesPresenter::chargeText() const {
    return percentText(chargeProgress_);
}

GamePresenter* GamesPresenter::current() {
    if (game_ == Tetris) return &tetris_;
    return &breakout_;
}

void GamesPresenter::switchGame() {
    if (gate_.playingNow()) return;
    change(this, game_, game_ == Tetris ? Breakout : Tetris, &GamesPresenter::gameChanged);
}

void GamesPresenter::play() {
    if (gate_.startPlay()) current()->start();
}

void GamesPresenter::leave() {
    gate_.endPlay();
}

void GamesPresenter::visibilityChanged() {
    if (isVisible()) {
        appear();
    } else {
        disappear();
    }
}

void GamesPresenter::appear() {
    refresh_ =
        mainLoop_.repeat(std::chrono::seconds(1), platform::TimerMode::common, [this] { gate_.refresh(); });
}

void GamesPresenter::disappear() {
    refresh_.reset();
    tetris_.stop();
    breakout_.stop();
    if (gate_.playingNow()) gate_.endPlay();
}

void GamesPresenter::update() {
    const auto face = faceOfGate();
    // The values first, so that a face never appears with those of the one before.
    change(this, timeText_, timeOf(face), &GamesPresenter::timeTextChanged);
    change(this, chargeProgress_, gate_.chargeProgress(), &GamesPresenter::chargeProgressChanged);
    change(this, face_, face, &GamesPresenter::faceChanged);
}

GamesPresenter::Face GamesPresenter::faceOfGate() const {
    if (gate_.playingNow()) return Playing;
    const auto state = gate_.state();
    if (std::holds_alternative<GameGate::Locked>(state)) return Locked;
    return std::holds_alternative<GameGate::Ready>(state) ? Ready : Charging;
}

QString GamesPresenter::timeOf(Face face) const {
    switch (face) {
        case Charging:
            return "Trabaja " + text(compact(gate_.workRemaining()));
        case Locked:
            return "Vuelve en " + text(compact(gate_.lockRemaining()));
        case Ready:
        case Playing:
            break;
    }
    return {};
}

}  // namespace tidewatch
