#include "game_fixture.h"
#include "reference_rules.h"

#include <map>
#include <random>

namespace {

struct Turn {
    const char* name;
    const char* board;
    std::map<int16_t, int> scores; // pot -> score, for the worked examples only
    const char* after;
    std::vector<std::string> lines;
};

const Turn turns[] = {
    {"AfterTheHumanSowedA",
     "0 4 4 4 3 3 |0| 3 3 3 3 3 3 |0",
     {{7, -3}, {8, -3}, {9, 0}, {10, 1}, {11, 6}, {12, 1}},
     "0 4 4 4 3 3 |0| 3 3 3 3 0 0 |6",
     {"#001>Move   3 from B", "#002>Last pot A is empty: 4 taken"}},
    {"TieGoesToThePotNearestTheBank",
     "1 0 0 0 0 0 |0| 1 1 0 0 0 0 |0",
     {{7, 0}, {8, 0}},
     "1 0 0 0 0 0 |0| 1 0 1 0 0 0 |0",
     {"#001>Move   1 from E"}},
    {"ALapMarksTheThreat",
     "0 2 0 0 0 9 |5| 1 3 0 2 0 1 |4",
     {{7, -3}, {8, 0}, {10, -4}, {12, -1}},
     "0 0 0 0 0 9 |5| 1 0 1 3 0 1 |7",
     {"#001>Move   3 from E", "#002>Last pot B is empty: 2 taken"}},
    // Each extra move selects afresh on the board it left.
    {"ExtraMovesChain",
     "1 0 0 0 0 0 |0| 0 0 0 0 2 1 |0",
     {},
     "2 0 0 0 0 0 |0| 0 0 0 0 0 0 |2",
     {"#001>Move   2 from B", "#002>Last entry into the bank; move again", "#003>Move   2 from A"}},
    // The pass after the bank finds its own row spent: it ends without a word.
    {"SpendingTheOwnRowInTheBank",
     "0 0 0 0 0 1 |0| 0 0 0 0 0 1 |0",
     {},
     "0 0 0 0 0 1 |0| 0 0 0 0 0 0 |1",
     {"#001>Move   1 from A", "#002>Last entry into the bank; move again"}},
    // An empty human row does not stop the chain.
    {"KeepsGoingWhenTheOtherRowIsEmpty",
     "0 0 0 0 0 0 |5| 0 0 0 0 1 1 |0",
     {},
     "0 0 0 0 0 0 |5| 0 0 0 0 0 1 |1",
     {"#001>Move   1 from A", "#002>Last entry into the bank; move again", "#003>Move   1 from B"}},
    // Every pot scores below -99; the best of them is played all the same.
    {"AHopelessPositionStillPlaysItsBestPot",
     "0 0 0 0 0 1 |150| 1 0 0 0 0 2 |0",
     {},
     "1 0 0 0 0 1 |150| 1 0 0 0 0 0 |1",
     {"#001>Move   2 from A"}},
};

// Names the case in test listings instead of dumping its bytes.
void PrintTo(const Turn& one, std::ostream* out)
{
    *out << one.name;
}

} // namespace

class ComputerTurn : public GameTest, public ::testing::WithParamInterface<Turn> {};

TEST_P(ComputerTurn, PlaysTheBestPotAndNarratesEachStepInRed)
{
    const Turn& turn = GetParam();
    state.Beads = parseBoard(turn.board);
    game.ComputerMove();
    EXPECT_EQ(board(), turn.after);
    EXPECT_EQ(moves(), turn.lines);
    for (size_t i = 0; i < turn.lines.size(); ++i)
        EXPECT_EQ(screen.log[i].color, ComputerRed);
    EXPECT_NE(state.CurrentPot, ComputerBank);
}

INSTANTIATE_TEST_SUITE_P(Positions, ComputerTurn, ::testing::ValuesIn(turns),
                         [](const auto& info) { return std::string(info.param.name); });

using ComputerMove = GameTest;

TEST_F(ComputerMove, WorkedExamplesScoreEveryPotAndPutTheBoardBack)
{
    for (const Turn& turn : turns) {
        if (turn.scores.empty())
            continue;
        state.Beads = parseBoard(turn.board);
        const auto before = state.Beads;
        state.SavedBeads = state.Beads;
        for (int16_t pot = 7; pot <= 12; ++pot) {
            const auto it = turn.scores.find(pot);
            if (it == turn.scores.end())
                continue;
            EXPECT_EQ(game.evaluatePot(pot), it->second) << turn.name << " pot " << pot;
            EXPECT_EQ(state.Beads, before) << turn.name << " pot " << pot;
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
