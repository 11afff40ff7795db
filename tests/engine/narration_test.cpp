#include "game_fixture.h"

using Narration = GameTest;

TEST_F(Narration, OnlyNewLinesAreListed)
{
    game.ListMove(SideHuman, "same");
    game.ListMove(SideHuman, "same");
    game.ListMove(SideHuman, "");
    game.ListMove(SideComputer, "same"); // another side makes another key
    game.ListMove(SideHint, "HINT: Move   3 from F");
    game.ListMove(SideHint, "HINT: Last entry into the bank; move again");
    game.ListMove(SideHint, "HINT: Move   1 from A");
    game.ListMove(SideHuman, "Move   3 from A");
    game.ListMove(SideHint, "HINT: Move   1 from A");
    EXPECT_EQ(moves(), (std::vector<std::string>{"#001>same", "#002>same", "HINT: Move   3 from F",
                                                 "#003>Move   3 from A", "HINT: Move   1 from A"}));
    EXPECT_EQ(screen.log[0].color, HintBlack);
    EXPECT_EQ(state.EntryNumber, 3) << "hint lines take no number";

    state.EntryNumber = 999;
    game.ListMove(SideHuman, "x");
    EXPECT_EQ(moves().back(), "#1000>x");
}

// Each step of the reply waits on the bar, with the commands shut away, and reaches
// the list only after its click; the board waits for the end of the reply.
TEST_F(Narration, EachComputerStepWaitsForItsClickBeforeItIsListed)
{
    state.PauseAtMoves = true;
    bool triedToMove = false;
    screen.onPendingEvents = [&] {
        EXPECT_TRUE(screen.messEnabled);
        EXPECT_FALSE(screen.commandFrameEnabled);
        EXPECT_EQ(screen.tags[12], "3");
        if (triedToMove) {
            game.Mess_Click();
            return;
        }
        triedToMove = true;
        expectNoMoveStarts();
        // What the same pass of the event loop delivers behind the releasing click
        // still runs inside the computer's move.
        game.Mess_Click();
        expectNoMoveStarts();
    };
    screen.calls.clear();
    click(0);

    std::vector<std::string> order;
    for (const auto& call : screen.calls)
        if (call.starts_with("mess:") || call.starts_with("add:#") || call == "events")
            order.push_back(call);
    EXPECT_EQ(order, (std::vector<std::string>{
                         "add:#001>Move   3 from A",
                         "mess:Computer move> Move   3 from B; click to continue",
                         "events",
                         "add:#002>Move   3 from B",
                         "mess:Computer move> Last pot A is empty: 4 taken; click to continue",
                         "events",
                         "add:#003>Last pot A is empty: 4 taken",
                         "mess:YOUR MOVE NOW",
                     }));
    EXPECT_FALSE(screen.messEnabled);
    EXPECT_TRUE(screen.commandFrameEnabled);
    EXPECT_EQ(board(), "0 4 4 4 3 3 |0| 3 3 3 3 0 0 |6");
}
