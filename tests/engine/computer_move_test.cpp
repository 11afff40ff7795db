#include "game_fixture.h"
#include "reference_rules.h"

#include <map>
#include <random>

namespace {

struct WorkedExample {
    const char* name;
    const char* board;
    std::map<int16_t, int> scores; // pot -> score; pots not named are no candidates
    const char* after;
    std::vector<std::string> lines;
};

const WorkedExample examples[] = {
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
};

void PrintTo(const WorkedExample& example, std::ostream* out)
{
    *out << example.name;
}

} // namespace

class ComputerMoveExample : public GameTest, public ::testing::WithParamInterface<WorkedExample> {};

TEST_P(ComputerMoveExample, ScoresEveryPotAndLeavesTheBoardAsFound)
{
    const WorkedExample& example = GetParam();
    game.Beads = ParseBoard(example.board);
    const auto before = game.Beads;
    game.SavedBeads = game.Beads;
    for (int16_t pot = 7; pot <= 12; ++pot) {
        const auto it = example.scores.find(pot);
        if (it == example.scores.end()) {
            EXPECT_EQ(game.Beads[pot], 0) << "pot " << pot << " should be no candidate";
            continue;
        }
        EXPECT_EQ(game.EvaluatePot(pot), it->second) << "pot " << pot;
        EXPECT_EQ(game.Beads, before) << "the try-out of pot " << pot << " was not put back";
    }
}

TEST_P(ComputerMoveExample, PlaysTheBestPotAndNarratesIt)
{
    const WorkedExample& example = GetParam();
    game.Beads = ParseBoard(example.board);
    game.ComputerMove();
    EXPECT_EQ(Board(), example.after);
    EXPECT_EQ(Moves(), example.lines);
    for (size_t i = 0; i < example.lines.size(); ++i)
        EXPECT_EQ(screen.log[i].color, ComputerRed);
    EXPECT_NE(game.CurrentPot, ComputerBank);
}

INSTANTIATE_TEST_SUITE_P(WorkedExamples, ComputerMoveExample, ::testing::ValuesIn(examples),
                         [](const auto& info) { return std::string(info.param.name); });

using ComputerMove = GameTest;

TEST_F(ComputerMove, ExtraMovesChainWithAFreshSelectionEachPass)
{
    game.Beads = ParseBoard("1 0 0 0 0 0 |0| 0 0 0 0 2 1 |0");
    game.ComputerMove();
    EXPECT_EQ(Moves(), (std::vector<std::string>{"#001>Move   2 from B",
                                                 "#002>Last entry into the bank; move again",
                                                 "#003>Move   2 from A"}));
    EXPECT_EQ(Board(), "2 0 0 0 0 0 |0| 0 0 0 0 0 0 |2");
    EXPECT_FALSE(game.GameLive);
}

TEST_F(ComputerMove, SpendingTheOwnRowInTheBankEndsTheCallWithoutAFurtherEntry)
{
    game.Beads = ParseBoard("0 0 0 0 0 1 |0| 0 0 0 0 0 1 |0");
    game.ComputerMove();
    EXPECT_EQ(Moves(), (std::vector<std::string>{"#001>Move   1 from A",
                                                 "#002>Last entry into the bank; move again"}));
    EXPECT_FALSE(game.GameLive);
    EXPECT_NE(game.CurrentPot, ComputerBank);
    EXPECT_EQ(game.ChosenPot, 12);
}

TEST_F(ComputerMove, KeepsGoingAfterTheBankWhenTheOtherRowIsEmpty)
{
    game.Beads = ParseBoard("0 0 0 0 0 0 |5| 0 0 0 0 1 1 |0");
    game.ComputerMove();
    EXPECT_EQ(Moves(), (std::vector<std::string>{"#001>Move   1 from A",
                                                 "#002>Last entry into the bank; move again",
                                                 "#003>Move   1 from B"}));
}

TEST_F(ComputerMove, AHopelessPositionStillPlaysItsBestPot)
{
    // Every candidate scores below -99; the best of them, the last of equals, is played.
    game.Beads = ParseBoard("0 0 0 0 0 1 |150| 1 0 0 0 0 2 |0");
    game.ComputerMove();
    EXPECT_EQ(Moves(), (std::vector<std::string>{"#001>Move   2 from A"}));
    EXPECT_EQ(Board(), "1 0 0 0 0 1 |150| 1 0 0 0 0 0 |1");
}

TEST_F(ComputerMove, AgreesWithThePlainReadingOfTheRulesOnRandomBoards)
{
    std::mt19937 random(7);
    std::uniform_int_distribution<int> count(0, 12), bank(0, 40);
    for (int round = 0; round < 3000; ++round) {
        ref::Ring b{};
        for (int s = 0; s < 14; ++s)
            b[s] = (s == 6 || s == 13) ? bank(random) : (random() % 3 == 0 ? 0 : count(random));
        if (ref::Choose(b) < 0)
            b[7 + random() % 6] = 1 + count(random);
        for (int s = 0; s < 14; ++s)
            game.Beads[s] = static_cast<int16_t>(b[s]);
        game.SavedBeads = game.Beads;
        for (int16_t p = 7; p <= 12; ++p) {
            if (b[p] > 0) {
                ASSERT_EQ(game.EvaluatePot(p), ref::Score(b, p)) << "round " << round;
            }
        }
        ASSERT_EQ(game.Beads, game.SavedBeads);
        game.ComputerMove();
        ref::ComputerTurn(b);
        for (int s = 0; s < 14; ++s)
            ASSERT_EQ(game.Beads[s], b[s]) << "round " << round << " slot " << s;
    }
}
