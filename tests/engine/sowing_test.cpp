#include "game_fixture.h"

#include "common/numbers.h"

using Rules = GameTest;

TEST_F(Rules, LettersNameThePotsAsTheyStandOnTheScreen)
{
    std::string plain, turned;
    for (int16_t s : {0, 1, 2, 3, 4, 5, 7, 8, 9, 10, 11, 12}) {
        plain += game.PotLetter(s);
        state.BoardMirrored = true;
        turned += game.PotLetter(s);
        state.BoardMirrored = false;
    }
    EXPECT_EQ(plain, "ABCDEFFEDCBA");
    EXPECT_EQ(turned, "FEDCBAABCDEF");
}

// No board of real play comes near: counts and totals stop at the 16-bit limit.
TEST_F(Rules, HugeCountsStopAtTheLimitInsteadOfTurningNegative)
{
    state.TotalsAtGameStart[2] = 32000;
    setBoard("32767 0 0 0 0 0 |32767| 0 0 0 0 0 0 |0");
    game.SowPot(0);
    for (int16_t count : state.Beads)
        EXPECT_GE(count, 0);
    EXPECT_EQ(state.Beads[HumanBank], 32767);
    EXPECT_EQ(screen.totalB[2], "32767");
}

TEST(NumberText, CountsFillThreePlaces)
{
    EXPECT_EQ(Game::StrCount(3), "  3");
    EXPECT_EQ(Game::StrCount(12), " 12");
    EXPECT_EQ(Game::StrCount(123), "123");
    EXPECT_EQ(Game::StrCount(1188), "1188");
}
