#include "game_fixture.h"

using Keyboard = GameTest;

constexpr int16_t KeyA = 65;

TEST_F(Keyboard, TheWalkSkipsEmptyPotsAndWrapsFromFToA)
{
    SetBoard("3 0 0 3 0 3 |0| 3 3 3 3 3 3 |0");
    game.KeyboardPot = 0;
    for (int16_t expected : {3, 5, 0}) {
        Key(KeyA);
        EXPECT_EQ(game.KeyboardPot, expected);
    }
    // Enter on an empty pot walks on like any key.
    game.KeyboardPot = 1;
    Key(KeyEnter);
    EXPECT_EQ(game.KeyboardPot, 3);
    EXPECT_TRUE(Moves().empty());

    // With the whole row empty the walk gives up one step further on.
    SetBoard("0 0 0 0 0 0 |0| 3 3 3 3 3 3 |0");
    game.KeyboardPot = 2;
    Key(KeyA);
    EXPECT_EQ(game.KeyboardPot, 3);
}
