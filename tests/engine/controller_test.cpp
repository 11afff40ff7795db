#include "game_fixture.h"

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
    {"Drawn", "0 0 0 0 0 1 |4| 2 9 9 0 0 0 |5", "GAME DRAWN", 0, 0, 1},
};

// Names the case in test listings instead of dumping its bytes.
void PrintTo(const Ending& one, std::ostream* out)
{
    *out << one.name;
}

} // namespace

class GameEnding : public GameTest, public ::testing::WithParamInterface<Ending> {};

// The last bead lands in the human's bank and spends the row: the game ends at once,
// with no extra move, and the beads left on the computer's row count for nobody.
TEST_P(GameEnding, OnlyTheBanksCount)
{
    const Ending& ending = GetParam();
    setBoard(ending.board);
    click(5);

    EXPECT_EQ(screen.messCaption, std::string(ending.result) + " - click here to restart");
    EXPECT_TRUE(screen.messEnabled);
    EXPECT_EQ(moves(), (std::vector<std::string>{"#001>Move   1 from F", ending.result}));
    EXPECT_EQ(screen.log[0].color, -1) << "the result line takes the list's own colour";
    EXPECT_EQ(screen.scoreWins, ending.wins);
    EXPECT_EQ(screen.scoreLosses, ending.losses);
    EXPECT_EQ(screen.scoreDraws, ending.draws);
    // The score board hears of the game before the log does.
    const auto at = [&](const std::string& call) {
        return std::find_if(screen.calls.begin(), screen.calls.end(),
                            [&](auto& c) { return c.starts_with(call); });
    };
    EXPECT_LT(at("score:"), at(std::string("add:") + ending.result));
    EXPECT_EQ(state.EntryNumber, 0);
    EXPECT_EQ(screen.tags[7], "2") << "the pots still show what is left";
}

INSTANTIATE_TEST_SUITE_P(Results, GameEnding, ::testing::ValuesIn(endings),
                         [](const auto& info) { return std::string(info.param.name); });

using Controller = GameTest;

TEST_F(Controller, AReplyThatSpendsARowEndsWithoutYourMoveNow)
{
    setBoard("1 0 0 0 0 1 |0| 0 0 0 0 0 1 |0");
    screen.calls.clear();
    click(0);
    EXPECT_TRUE(state.GameFinished);
    EXPECT_TRUE(screen.callsStartingWith("mess:YOUR MOVE NOW").empty());
    EXPECT_EQ(screen.messCaption, "COMPUTER WINS BY  1 POINTS - click here to restart");
    // The human's pots still hold beads, yet take no more clicks.
    for (int s = 0; s <= 5; ++s)
        EXPECT_FALSE(screen.potEnabled[s]) << "slot " << s;
}

TEST_F(Controller, BadPicksAndEventsFromNowhereChangeNothing)
{
    setBoard("3 0 3 3 3 3 |0| 3 3 3 3 3 3 |0");
    const auto board = state.Beads;
    for (const char* pick : {"0", "7", "-1", "", "abc", "99999", "1e9", "2"}) {
        state.Text1 = pick;
        int16_t result = 0;
        game.HumanMove(result);
        EXPECT_EQ(result, -1) << "pick '" << pick << "'";
    }
    for (int16_t index : {-1, 14, 200, -32768})
        for (int16_t button : {1, 2})
            game.Pots_MouseUp(index, button, 0, 0, 0);
    screen.tags[3] = "";
    click(3); // a pot whose face shows nothing takes no move
    EXPECT_EQ(state.Beads, board);
    EXPECT_TRUE(moves().empty());
    EXPECT_FALSE(screen.undoxEnabled);

    // A pick may come with blanks before it, as any number read by the game.
    state.Text1 = " 3";
    int16_t result = -1;
    game.HumanMove(result);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(moves().front(), "#001>Move   3 from C");
}
