#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "wellbeing/games/tetris_world.h"

namespace tidewatch {
namespace {

using test::TetrisWorld;

/// A place where a piece is turned once more, as golden/tetris_rotations.txt shows it.
struct Place {
    std::string name;
    std::string groundPieces;
    std::string groundKeys;
    std::string keys;
    std::size_t firstRow;
    std::size_t endRow;
};

std::vector<Place> places() {
    const std::string down(18, 'v');
    return {
        {"at the left wall", "", "", "<<<<<<<<", 0, 4},
        {"at the right wall", "", "", ">>>>>>>>", 0, 4},
        {"on the floor", "", "", down, 13, 18},
        {"in a well", "OOOOOOOO", "<<<_<_>>>_>>>>>_<<<_<_>>>_>>>>>_", "<<<<<<<<>>>>" + down, 9, 18},
        {"on a post", "I", "^<_", down, 9, 18},
    };
}

std::string turnedAt(const Place& place, char piece, int rot) {
    TetrisWorld world;
    world.play(place.groundPieces + piece);
    world.press(place.groundKeys);
    for (int i = 0; i < rot; ++i) world.press("^");
    world.press(place.keys);
    const auto before = world.drawing(TetrisWorld::Piece::drawn);
    world.press("^");
    const auto after = world.drawing(TetrisWorld::Piece::drawn);
    std::ostringstream text;
    text << piece << ", rotation " << rot << ", " << place.name << "\n";
    for (auto row = place.firstRow; row < place.endRow; ++row)
        text << before[row] << "  " << after[row] << "\n";
    text << "\n";
    return text.str();
}

TEST(TetrisRotationTest, AllPiecesTurnAndKickAtBothWallsAndOverGroundAsRecorded) {
    std::ostringstream boards;
    for (const char piece : std::string("IJLOSTZ")) {
        for (int rot = 0; rot < tetris::rotations; ++rot) {
            for (const auto& place : places()) boards << turnedAt(place, piece, rot);
        }
    }
    std::ostringstream recorded;
    recorded << std::ifstream(TIDEWATCH_GOLDEN_GAMES "/tetris_rotations.txt").rdbuf();
    EXPECT_EQ(boards.str(), recorded.str());
}

TEST(TetrisRotationTest, NextToTheLeftWallTheBarIsShiftedByTheFirstFreeOffset) {
    TetrisWorld world;
    world.play("I");
    world.press("^<<<<<<<");
    ASSERT_EQ(world.model.falling(), (tetris::Placement{1, 1, 0, -2}));
    world.press("^");
    EXPECT_EQ(world.model.falling(), (tetris::Placement{1, 2, 0, 0})) << "0, -1, +1 and -2 collide";
}

TEST(TetrisRotationTest, FourTurnsInTheOpenLeadBack) {
    for (const char piece : std::string("IJLOSTZ")) {
        TetrisWorld world;
        world.play(std::string(1, piece));
        world.press("vvvv");
        const auto before = world.model.falling();
        for (int rot = 1; rot <= 4; ++rot) {
            world.press("^");
            EXPECT_EQ(world.model.falling().rot, rot % 4);
            EXPECT_EQ(world.model.falling().column, before.column) << "no shift without need";
        }
        EXPECT_EQ(world.model.falling(), before);
    }
}

TEST(TetrisRotationTest, NothingChangesIfAllFiveOffsetsCollide) {
    TetrisWorld world;
    world.play("I");
    for (int i = 0; i < 17; ++i) world.press("v");
    const auto before = world.model.falling();
    int changes = 0;
    const auto counting = world.model.changed.connect([&] { ++changes; });
    world.press("^");
    EXPECT_EQ(world.model.falling(), before);
    EXPECT_EQ(changes, 0);
}

}  // namespace
}  // namespace tidewatch
