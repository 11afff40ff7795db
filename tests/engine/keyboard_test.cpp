#include "game_fixture.h"

using Keyboard = GameTest;

constexpr int16_t KeyA = 65;

TEST_F(Keyboard, TheFirstEnterOnlySelectsTheSecondPlays)
{
    Key(KeyEnter);
    EXPECT_EQ(game.KeyboardPot, 0);
    EXPECT_TRUE(Moves().empty());
    Key(KeyEnter);
    ASSERT_FALSE(Moves().empty());
    EXPECT_EQ(Moves().front(), "#001>Move   3 from A");
    EXPECT_FALSE(screen.startBeadsEnabled);
    EXPECT_EQ(game.KeyboardPot, 0) << "the selection stays where it was";
}

TEST_F(Keyboard, ThreeKeysThenEnterPlaysC)
{
    Key(KeyA);
    Key(KeyA);
    Key(KeyA);
    Key(KeyEnter);
    ASSERT_FALSE(Moves().empty());
    EXPECT_EQ(Moves().front(), "#001>Move   3 from C");
}

TEST_F(Keyboard, TheWalkSkipsEmptyPotsAndWrapsFromFToA)
{
    SetBoard("3 0 0 3 0 3 |0| 3 3 3 3 3 3 |0");
    game.KeyboardPot = 0;
    Key(KeyA);
    EXPECT_EQ(game.KeyboardPot, 3);
    Key(KeyA);
    EXPECT_EQ(game.KeyboardPot, 5);
    Key(KeyA);
    EXPECT_EQ(game.KeyboardPot, 0);
}

TEST_F(Keyboard, EnterOnAnEmptyPotWalksOn)
{
    SetBoard("3 0 0 3 0 3 |0| 3 3 3 3 3 3 |0");
    game.KeyboardPot = 1;
    Key(KeyEnter);
    EXPECT_EQ(game.KeyboardPot, 3);
    EXPECT_TRUE(Moves().empty());
}

TEST_F(Keyboard, WithEveryPotEmptyTheSelectionMovesOneStep)
{
    SetBoard("0 0 0 0 0 0 |0| 3 3 3 3 3 3 |0");
    game.KeyboardPot = 2;
    Key(KeyA);
    EXPECT_EQ(game.KeyboardPot, 3);
}

TEST_F(Keyboard, EnterIsALeftClickOnThePot)
{
    screen.handVisible = true;
    game.KeyboardPot = 4;
    Key(KeyEnter);
    EXPECT_FALSE(screen.handVisible);
    EXPECT_FALSE(screen.startBeadsEnabled);
    EXPECT_EQ(Moves().front(), "#001>Move   3 from E");
}

TEST_F(Keyboard, NoKeyActsAfterTheEndOfAGame)
{
    SetBoard("0 0 0 0 0 1 |3| 2 2 3 0 0 0 |9");
    game.KeyboardPot = 5;
    Key(KeyEnter);
    ASSERT_TRUE(game.GameFinished);
    const auto lines = screen.log.size();
    Key(KeyA);
    Key(KeyEnter);
    EXPECT_EQ(game.KeyboardPot, 5);
    EXPECT_EQ(screen.log.size(), lines);
}
