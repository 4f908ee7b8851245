#pragma once

#include <cstdint>
#include <deque>
#include <initializer_list>
#include <string_view>

#include "platform/api/randomness.h"

namespace tidewatch::test {

/// A random source that gives what the test says, and then the same over and over.
class ScriptedRandomness final : public platform::Randomness {
public:
    [[nodiscard]] std::uint64_t bits() override {
        if (script_.empty()) return rest_;
        const auto drawn = script_.front();
        script_.pop_front();
        return drawn;
    }

    void add(std::uint64_t drawn) { script_.push_back(drawn); }

    /// What is drawn when the script is at its end.
    void thenAlways(std::uint64_t drawn) { rest_ = drawn; }

    /// Pieces of the falling-blocks game by their letters.
    void addPieces(std::string_view letters) {
        for (const char letter : letters) add(drawOf(letter));
    }
    void thenAlwaysPiece(char letter) { thenAlways(drawOf(letter)); }

    /// Directions of the brick game's launches, "+" rightward and "-" leftward.
    void addSigns(std::string_view signs) {
        for (const char sign : signs) add(sign == '+' ? 1 : 0);
    }

    [[nodiscard]] std::size_t left() const { return script_.size(); }

private:
    [[nodiscard]] static std::uint64_t drawOf(char letter) {
        return std::string_view("IJLOSTZ").find(letter);
    }

    std::deque<std::uint64_t> script_;
    std::uint64_t rest_ = 0;
};

}  // namespace tidewatch::test
