#include "game_fixture.h"

using EndGame = GameTest;

namespace {
struct Ending {
    const char* name;
    const char* board; // the human plays F, the last pot of the row
    const char* result;
    int wins, losses, draws;
};

const Ending endings[] = {
    {"ComputerWins", "0 0 0 0 0 1 |3| 2 2 3 0 0 0 |9", "COMPUTER WINS BY  5 POINTS", 0, 1, 0},
    {"HumanWins", "0 0 0 0 0 1 |9| 2 2 3 0 0 0 |5", "YOU WIN BY  5 POINTS", 1, 0, 0},
    {"Drawn", "0 0 0 0 0 1 |4| 9 9 9 0 0 0 |5", "GAME DRAWN", 0, 0, 1},
};

void PrintTo(const Ending& ending, std::ostream* out)
{
    *out << ending.name;
}
} // namespace

class GameEnding : public GameTest, public ::testing::WithParamInterface<Ending> {};

// The last bead lands in the human's bank and spends the row: the game ends at once,
// with no extra move, and the beads left on the computer's row count for nobody.
TEST_P(GameEnding, OnlyTheBanksCount)
{
    const Ending& ending = GetParam();
    SetBoard(ending.board);
    Click(5);

    EXPECT_EQ(screen.messCaption, std::string(ending.result) + " - click here to restart");
    EXPECT_TRUE(screen.messEnabled);
    EXPECT_TRUE(screen.messVisible);
    EXPECT_EQ(Moves(), (std::vector<std::string>{"#001>Move   1 from F", ending.result}));
    EXPECT_EQ(screen.log[0].color, -1) << "the result line takes the list's own colour";
    EXPECT_EQ(screen.scoreWins, ending.wins);
    EXPECT_EQ(screen.scoreLosses, ending.losses);
    EXPECT_EQ(screen.scoreDraws, ending.draws);
    EXPECT_TRUE(screen.CallsStartingWith("mess:Last entry").empty());
    // The score board hears of the game before the log does.
    const auto scoreAt = std::find_if(screen.calls.begin(), screen.calls.end(),
                                      [](auto& c) { return c.starts_with("score:"); });
    const auto resultAt =
        std::find(screen.calls.begin(), screen.calls.end(), std::string("add:") + ending.result);
    EXPECT_LT(scoreAt, resultAt);

    EXPECT_TRUE(game.GameFinished);
    EXPECT_EQ(game.EntryNumber, 0);
    for (bool enabled : screen.potEnabled)
        EXPECT_FALSE(enabled);
    EXPECT_EQ(screen.tags[7], game.Beads[7] ? std::to_string(game.Beads[7]) : "");
    EXPECT_NE(game.Beads[7] + game.Beads[8] + game.Beads[9], 0);
}

INSTANTIATE_TEST_SUITE_P(Results, GameEnding, ::testing::ValuesIn(endings),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(EndGame, AReplyThatSpendsARowEndsWithoutYourMoveNow)
{
    SetBoard("1 0 0 0 0 1 |0| 0 0 0 0 0 1 |0");
    const auto movesNowBefore = screen.CallsStartingWith("mess:YOUR MOVE NOW").size();
    Click(0);
    EXPECT_TRUE(game.GameFinished);
    EXPECT_EQ(screen.CallsStartingWith("mess:YOUR MOVE NOW").size(), movesNowBefore);
    EXPECT_EQ(screen.messCaption, "COMPUTER WINS BY  1 POINTS - click here to restart");
}

TEST_F(EndGame, NothingButMessActsOnAFinishedGame)
{
    SetBoard("0 0 0 0 0 1 |3| 2 2 3 0 0 0 |9");
    Click(5);
    const auto board = game.Beads;
    const auto lines = screen.log.size();
    Click(0);
    game.Undox_Click();
    game.TakeComp_Click();
    game.GiveHint_MouseDown(1, 0, 0, 0);
    game.GiveHint_MouseUp(1, 0, 0, 0);
    Key(KeyEnter);
    Key(KeyEnter);
    EXPECT_EQ(game.Beads, board);
    EXPECT_EQ(screen.log.size(), lines);
    // Undo was enabled by the last move and stays so; its handler does nothing.
    EXPECT_TRUE(screen.undoxEnabled);
}

TEST_F(EndGame, RestartLaysOutAFreshBoardAndKeepsTotalsAndPauseMode)
{
    game.PauseAtMoves = true;
    game.StartBeadCount = 5;
    SetBoard("0 0 0 0 0 1 |9| 2 2 3 0 0 0 |5");
    Click(5);
    ASSERT_TRUE(game.GameFinished);
    game.Mess_Click();

    EXPECT_FALSE(game.GameFinished);
    EXPECT_EQ(Board(), "5 5 5 5 5 5 |0| 5 5 5 5 5 5 |0");
    EXPECT_TRUE(screen.log.empty());
    EXPECT_EQ(screen.totalB[2], "10");
    EXPECT_EQ(screen.totalB[1], "5");
    EXPECT_TRUE(game.PauseAtMoves);
    EXPECT_TRUE(screen.startBeadsEnabled);
    EXPECT_FALSE(screen.undoxEnabled);
    EXPECT_FALSE(screen.messEnabled);
    EXPECT_EQ(screen.messCaption, "YOUR MOVE NOW");
    // The computer's pots take the mouse after a restart; the banks never do.
    for (int s = 0; s < SlotCount; ++s)
        EXPECT_EQ(screen.potEnabled[s], !IsBank(s)) << "slot " << s;

    game.PauseAtMoves = false;
    Click(0);
    ASSERT_FALSE(screen.log.empty());
    EXPECT_EQ(Log().front(), "#001>Move   5 from A");
}

TEST_F(EndGame, TotalsAddUpTheBanksOfEveryGame)
{
    SetBoard("0 0 0 0 0 1 |9| 2 2 3 0 0 0 |5");
    Click(5);
    EXPECT_EQ(screen.totalB[2], "10");
    game.Mess_Click();
    EXPECT_EQ(screen.totalB[2], "10");

    SetBoard("0 0 0 0 0 1 |7| 2 0 0 0 0 0 |0");
    EXPECT_EQ(screen.totalB[2], "17");
    Click(5);
    EXPECT_TRUE(game.GameFinished);
    EXPECT_EQ(screen.totalB[2], "18");
    EXPECT_EQ(screen.totalB[1], "5");
}

TEST_F(EndGame, TotalsStopAtTheSixteenBitLimit)
{
    game.TotalsAtGameStart[2] = 32000;
    SetBoard("3 3 3 3 3 3 |1000| 3 3 3 3 3 3 |0");
    EXPECT_EQ(game.RunningTotals[2], 32767);
    EXPECT_EQ(screen.totalB[2], "32767");
}

TEST_F(EndGame, NoGameEndsBeforeItsFirstMove)
{
    EXPECT_FALSE(game.GameLive);
    Click(1);
    EXPECT_FALSE(game.GameFinished);
    EXPECT_TRUE(game.GameLive);
    EXPECT_EQ(screen.messCaption, "YOUR MOVE NOW");
}
