#include "game_fixture.h"

#include "common/numbers.h"

namespace {

struct Sowing {
    const char* name;
    const char* board;
    int16_t pot;
    const char* sown; // before any capture
    int16_t last;
    bool captures;
};

const Sowing sowings[] = {
    // Slot 3 held beads: no capture, no extra move.
    {"FirstMoveFromA", "3 3 3 3 3 3 |0| 3 3 3 3 3 3 |0", 0, "0 4 4 4 3 3 |0| 3 3 3 3 3 3 |0", 3,
     false},
    // A lap feeds the emptied source pot, and its one bead captures like any other.
    {"FourteenEndInTheSourcePot", "0 0 14 0 0 0 |0| 0 0 0 0 0 0 |0", 2,
     "1 1 1 1 1 1 |1| 1 1 1 1 1 1 |1", 2, true},
    {"FifteenGiveTheNextSlotTwo", "0 0 15 0 0 0 |0| 0 0 0 0 0 0 |0", 2,
     "1 1 1 2 1 1 |1| 1 1 1 1 1 1 |1", 3, false},
    {"ThirteenFromAEndInTheOtherBank", "13 0 0 0 0 0 |0| 0 0 0 0 0 0 |0", 0,
     "0 1 1 1 1 1 |1| 1 1 1 1 1 1 |1", 13, false},
    {"ComputerEndsInTheEmptyHumanBank", "0 0 0 0 0 0 |0| 0 0 0 0 0 8 |0", 12,
     "1 1 1 1 1 1 |1| 0 0 0 0 0 0 |1", 6, false},
    {"EmptyPotOppositeAnEmptyPot", "1 0 0 0 0 0 |0| 0 0 0 0 0 2 |0", 0,
     "0 1 0 0 0 0 |0| 0 0 0 0 0 2 |0", 1, false},
    // Whose pot the last bead falls in does not matter.
    {"ComputerEndsOnTheHumanRow", "0 4 4 4 3 3 |0| 3 3 3 3 3 3 |0", 11,
     "1 4 4 4 3 3 |0| 3 3 3 3 0 4 |1", 0, true},
};

// Names the case in test listings instead of dumping its bytes.
void PrintTo(const Sowing& one, std::ostream* out)
{
    *out << one.name;
}

} // namespace

class OneSowing : public GameTest, public ::testing::WithParamInterface<Sowing> {};

TEST_P(OneSowing, GoesRoundTheWholeRingAndTestsTheLastPot)
{
    const Sowing& sowing = GetParam();
    state.Beads = parseBoard(sowing.board);
    game.SowPot(sowing.pot);
    EXPECT_EQ(board(), sowing.sown);
    EXPECT_EQ(state.CurrentPot, sowing.last);
    EXPECT_EQ(game.captureHolds(), sowing.captures);
}

INSTANTIATE_TEST_SUITE_P(Rules, OneSowing, ::testing::ValuesIn(sowings),
                         [](const auto& info) { return std::string(info.param.name); });

using Rules = GameTest;

TEST_F(Rules, LettersRunAToFOnBothRowsAndTurnWithTheBoard)
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
    EXPECT_EQ(Game::StrCount(1188), "1188");
}
