#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/support/fake_world.h"
#include "wellbeing/games/scripted_keys.h"
#include "wellbeing/games/scripted_randomness.h"
#include "wellbeing/games/tetris_model.h"

namespace tidewatch::test {

/// A falling-blocks game on a fake machine.
struct TetrisWorld {
    using State = TetrisModel::State;

    /// Presses keys: "<", ">", "v" and "^" are the arrows, "_" is space, "p" is P.
    void press(std::string_view presses) {
        for (const char each : presses) {
            keys.press(each == '<'   ? GameKey::left
                       : each == '>' ? GameKey::right
                       : each == 'v' ? GameKey::down
                       : each == '^' ? GameKey::up
                       : each == '_' ? GameKey::space
                                     : GameKey::p);
        }
    }

    /// Starts a game with these pieces; the last one then comes over and over.
    void play(std::string_view pieces) {
        random.addPieces(pieces);
        random.thenAlwaysPiece(pieces.back());
        model.play();
    }

    /// Fills and clears two rows with the next five pieces.
    void clearTwoLines() { press("<<<_>_<<<_>_>>>>>_"); }

    /// The pieces for this many calls of clearTwoLines().
    [[nodiscard]] static std::string piecesOfTwoLinesTimes(int count) {
        std::string pieces;
        for (int i = 0; i < count; ++i) pieces += "IIIIO";
        return pieces;
    }

    /// Plays on until the game is over: pieces pile up in the middle. Fails the test if it never is.
    void lose() {
        for (int i = 0; i < 100 && model.state() == State::playing; ++i) press("_");
        ASSERT_EQ(model.state(), State::over);
    }

    /// The time of one row's fall.
    void fallOneRow() { machine.mainLoop.runFor(tetris::gravityInterval(model.level())); }

    [[nodiscard]] std::int64_t storedBest() const { return machine.preferences.integer("tetrisHighScore"); }

    /// "." for an empty cell.
    [[nodiscard]] static char letterOf(int piece) {
        return std::string(".IJLOSTZ").at(static_cast<std::size_t>(piece));
    }

    /// The settled cells as letters, row by row, optionally with the falling piece as "#".
    enum class Piece { left_out, drawn };
    [[nodiscard]] std::vector<std::string> drawing(Piece piece) const {
        std::vector<std::string> lines;
        for (const auto& row : model.grid()) {
            std::string line;
            for (const int cell : row) line += letterOf(cell);
            lines.push_back(line);
        }
        if (piece == Piece::left_out) return lines;
        for (const auto& [row, column] : model.pieceCells()) {
            lines.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column)) = '#';
        }
        return lines;
    }

    FakeWorld machine;
    ScriptedKeys keys;
    ScriptedRandomness random;
    TetrisModel model{{machine.mainLoop, machine.preferences, random, keys}};
};

}  // namespace tidewatch::test
