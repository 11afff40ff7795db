#include "game_fixture.h"
#include "reference_rules.h"

#include <map>
#include <random>

using ComputerMove = GameTest;

// The worked examples: every candidate's score, and the board put back after each.
TEST_F(ComputerMove, ScoresEachCandidateByBanksLessTheGreatestThreat)
{
    const std::pair<const char*, std::map<int16_t, int>> examples[] = {
        {"0 4 4 4 3 3 |0| 3 3 3 3 3 3 |0", {{7, -3}, {8, -3}, {9, 0}, {10, 1}, {11, 6}, {12, 1}}},
        {"1 0 0 0 0 0 |0| 1 1 0 0 0 0 |0", {{7, 0}, {8, 0}}},
        {"0 2 0 0 0 9 |5| 1 3 0 2 0 1 |4", {{7, -3}, {8, 0}, {10, -4}, {12, -1}}},
    };
    for (const auto& [position, scores] : examples) {
        setBoard(position);
        state.SavedBeads = state.Beads;
        for (const auto& [pot, score] : scores) {
            EXPECT_EQ(game.evaluatePot(pot), score) << position << " pot " << pot;
            EXPECT_EQ(board(), position);
        }
    }
}

// Every tenth board holds pots of many laps, so that whole laps are dealt out too.
TEST_F(ComputerMove, AgreesWithThePlainReadingOfTheRulesOnRandomBoards)
{
    std::mt19937 random(7);
    std::uniform_int_distribution<int> count(0, 12), bank(0, 40);
    for (int round = 0; round < 3000; ++round) {
        const int laps = round % 10 == 0 ? 7 : 1;
        ref::Ring b{};
        for (int s = 0; s < 14; ++s)
            b[s] =
                (s == 6 || s == 13) ? bank(random) : (random() % 3 == 0 ? 0 : laps * count(random));
        if (ref::choose(b) < 0)
            b[7 + random() % 6] = 1 + count(random);
        for (int s = 0; s < 14; ++s)
            state.Beads[s] = static_cast<int16_t>(b[s]);
        state.SavedBeads = state.Beads;
        for (int16_t p = 7; p <= 12; ++p) {
            if (b[p] > 0) {
                ASSERT_EQ(game.evaluatePot(p), ref::score(b, p)) << "round " << round;
            }
        }
        ASSERT_EQ(state.Beads, state.SavedBeads);
        game.ComputerMove();
        ref::computerTurn(b);
        for (int s = 0; s < 14; ++s)
            ASSERT_EQ(state.Beads[s], b[s]) << "round " << round << " slot " << s;
    }
}
