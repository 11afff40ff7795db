#include "game_fixture.h"
#include "reference_rules.h"

#include "engine/number_text.h"

#include <random>

using Sowing = GameTest;

TEST_F(Sowing, LettersRunAToFOnBothRowsAndTurnWithTheBoard)
{
    const std::string plain = "ABCDEF FEDCBA";
    const std::string turned = "FEDCBA ABCDEF";
    std::string seen, seenTurned;
    for (int16_t s : {0, 1, 2, 3, 4, 5, -1, 7, 8, 9, 10, 11, 12}) {
        if (s < 0) {
            seen += ' ';
            seenTurned += ' ';
            continue;
        }
        game.BoardMirrored = false;
        seen += game.PotLetter(s);
        game.BoardMirrored = true;
        seenTurned += game.PotLetter(s);
        game.BoardMirrored = false;
        EXPECT_EQ(game.PotLetter(s), game.PotLetter(static_cast<int16_t>(Opposite(s))));
    }
    EXPECT_EQ(seen, plain);
    EXPECT_EQ(seenTurned, turned);
}

TEST(StrCount, RightAlignsInThreeAndNeverCuts)
{
    EXPECT_EQ(Game::StrCount(3), "  3");
    EXPECT_EQ(Game::StrCount(0), "  0");
    EXPECT_EQ(Game::StrCount(12), " 12");
    EXPECT_EQ(Game::StrCount(123), "123");
    EXPECT_EQ(Game::StrCount(1188), "1188");
}

TEST_F(Sowing, FirstMoveFromAFeedsTheNextThreePots)
{
    game.SowPot(0);
    EXPECT_EQ(Board(), "0 4 4 4 3 3 |0| 3 3 3 3 3 3 |0");
    EXPECT_EQ(game.CurrentPot, 3);
    EXPECT_FALSE(game.CaptureHolds());
}

TEST_F(Sowing, FourteenBeadsGoRoundAndEndInTheEmptiedSourcePot)
{
    game.Beads = ParseBoard("0 0 14 0 0 0 |0| 0 0 0 0 0 0 |0");
    game.SowPot(2);
    EXPECT_EQ(Board(), "1 1 1 1 1 1 |1| 1 1 1 1 1 1 |1");
    EXPECT_EQ(game.CurrentPot, 2);
    // The source pot held nothing when its bead came: a capture like any other.
    EXPECT_TRUE(game.CaptureHolds());
}

TEST_F(Sowing, FifteenBeadsGiveTheSlotAfterTheSourceASecondBead)
{
    game.Beads = ParseBoard("0 0 15 0 0 0 |0| 0 0 0 0 0 0 |0");
    game.SowPot(2);
    EXPECT_EQ(Board(), "1 1 1 2 1 1 |1| 1 1 1 1 1 1 |1");
    EXPECT_EQ(game.CurrentPot, 3);
}

TEST_F(Sowing, NoCaptureInEitherBank)
{
    game.Beads = ParseBoard("13 0 0 0 0 0 |0| 0 0 0 0 0 0 |0");
    game.MoverBank = HumanBank;
    game.SowPot(0);
    EXPECT_EQ(game.CurrentPot, ComputerBank);
    EXPECT_FALSE(game.CaptureHolds());

    // A computer pot ending in the human's empty bank takes nothing either.
    game.Beads = ParseBoard("0 0 0 0 0 0 |0| 0 0 0 0 0 8 |0");
    game.MoverBank = ComputerBank;
    game.SowPot(12);
    EXPECT_EQ(game.CurrentPot, HumanBank);
    EXPECT_EQ(game.Beads[HumanBank], 1);
    EXPECT_FALSE(game.CaptureHolds());
}

TEST_F(Sowing, EmptyPotOppositeAnEmptyPotTakesNothing)
{
    game.Beads = ParseBoard("1 0 0 0 0 0 |0| 0 0 0 0 0 2 |0");
    game.SowPot(0);
    EXPECT_EQ(game.CurrentPot, 1);
    EXPECT_FALSE(game.CaptureHolds());
}

TEST_F(Sowing, RowCheckIgnoresTheBanks)
{
    game.Beads = ParseBoard("0 0 0 0 0 0 |9| 1 0 0 0 0 0 |9");
    game.CheckRows();
    EXPECT_FALSE(game.GameLive);
    game.Beads = ParseBoard("0 0 0 0 0 1 |0| 0 0 0 0 0 0 |9");
    game.CheckRows();
    EXPECT_FALSE(game.GameLive);
    game.Beads = ParseBoard("0 0 0 0 0 1 |0| 0 0 0 0 0 1 |0");
    game.CheckRows();
    EXPECT_TRUE(game.GameLive);
}

TEST_F(Sowing, TurningTheBoardTwiceRestoresIt)
{
    game.Beads = ParseBoard("1 2 3 4 5 6 |7| 8 9 10 11 12 13 |14");
    game.SwapSides();
    EXPECT_EQ(Board(), "8 9 10 11 12 13 |14| 1 2 3 4 5 6 |7");
    game.SwapSides();
    EXPECT_EQ(Board(), "1 2 3 4 5 6 |7| 8 9 10 11 12 13 |14");
}

// Whole laps are dealt out at once; a bead-by-bead sowing must agree on every board.
TEST_F(Sowing, AgreesWithBeadByBeadSowingOnRandomBoards)
{
    std::mt19937 random(20261122);
    std::uniform_int_distribution<int> count(0, 60), slot(0, 13);
    for (int round = 0; round < 2000; ++round) {
        ref::Ring expected{};
        for (int s = 0; s < 14; ++s) {
            expected[s] = round % 10 == 0 ? count(random) * 7 : count(random);
            game.Beads[s] = static_cast<int16_t>(expected[s]);
        }
        const int pot = slot(random);
        const int last = ref::Sow(expected, pot);
        game.SowPot(static_cast<int16_t>(pot));
        ASSERT_EQ(game.CurrentPot, last) << "round " << round;
        for (int s = 0; s < 14; ++s)
            ASSERT_EQ(game.Beads[s], expected[s]) << "round " << round << " slot " << s;
    }
}

TEST_F(Sowing, HugeCountsSaturateInsteadOfTurningNegative)
{
    game.Beads = ParseBoard("32767 0 0 0 0 0 |32767| 0 0 0 0 0 0 |0");
    game.SowPot(0);
    for (int16_t count : game.Beads)
        EXPECT_GE(count, 0);
    EXPECT_EQ(game.Beads[HumanBank], 32767);
}

TEST(NumberText, OneBlankBeforeANumberThatIsNotNegative)
{
    EXPECT_EQ(NumberText(5), " 5");
    EXPECT_EQ(NumberText(0), " 0");
    EXPECT_EQ(NumberText(-1), "-1");
    EXPECT_EQ(Digits(42), "42");
}

TEST(NumericRead, ReadsTheLeadingNumberOfAText)
{
    EXPECT_EQ(NumericRead("3"), 3);
    EXPECT_EQ(NumericRead("  12"), 12);
    EXPECT_EQ(NumericRead("12abc"), 12);
    EXPECT_EQ(NumericRead("-4"), -4);
    EXPECT_EQ(NumericRead("2.5x"), 2.5);
    EXPECT_EQ(NumericRead("1e3"), 1000);
    EXPECT_EQ(NumericRead("5e"), 5);
    EXPECT_EQ(NumericRead(""), 0);
    EXPECT_EQ(NumericRead("abc"), 0);
    EXPECT_EQ(NumericRead("-"), 0);
    EXPECT_EQ(NumericRead(" . "), 0);

    int16_t out = 0;
    EXPECT_TRUE(NumericRead16("2.5", out));
    EXPECT_EQ(out, 2); // halves go to the even neighbour
    EXPECT_TRUE(NumericRead16("3.5", out));
    EXPECT_EQ(out, 4);
    EXPECT_FALSE(NumericRead16("99999", out));
    EXPECT_FALSE(NumericRead16("1e400", out));
}
