#include "game_fixture.h"

using Narration = GameTest;

TEST_F(Narration, OpeningLinesNameTheColours)
{
    ASSERT_EQ(Log(), (std::vector<std::string>{"Computer is RED", "Human is GREEN"}));
    EXPECT_EQ(screen.log[1].color, ComputerRed);
    EXPECT_EQ(screen.log[0].color, HumanGreen);
    EXPECT_EQ(game.EntryNumber, 0);
}

TEST_F(Narration, FirstMoveIsNumberOneInGreenAndTheReplyGoesOnInRed)
{
    Click(0);
    EXPECT_EQ(Moves(), (std::vector<std::string>{"#001>Move   3 from A", "#002>Move   3 from B",
                                                 "#003>Last pot A is empty: 4 taken"}));
    // log[] is newest first
    EXPECT_EQ(screen.log[2].color, HumanGreen);
    EXPECT_EQ(screen.log[1].color, ComputerRed);
    EXPECT_EQ(screen.log[0].color, ComputerRed);
    EXPECT_EQ(screen.messCaption, "YOUR MOVE NOW");
    EXPECT_FALSE(screen.messEnabled);
    EXPECT_EQ(screen.doEventsCalls, 0);
}

TEST_F(Narration, RepeatsAndEmptyTextsAreDropped)
{
    game.ListMove(SideHuman, "same");
    game.ListMove(SideHuman, "same");
    game.ListMove(SideHuman, "");
    // Another side makes another key.
    game.ListMove(SideComputer, "same");
    EXPECT_EQ(Moves(), (std::vector<std::string>{"#001>same", "#002>same"}));
    EXPECT_EQ(game.LastEntryKey, " 2same");
}

TEST_F(Narration, OnlyTheFirstOfARunOfHintLinesIsListed)
{
    game.ListMove(SideHint, "HINT: Move   3 from F");
    game.ListMove(SideHint, "HINT: Last entry into the bank; move again");
    game.ListMove(SideHint, "HINT: Move   1 from A");
    game.ListMove(SideHuman, "Move   3 from A");
    game.ListMove(SideHint, "HINT: Move   1 from A");
    EXPECT_EQ(Moves(), (std::vector<std::string>{"HINT: Move   3 from F", "#001>Move   3 from A",
                                                 "HINT: Move   1 from A"}));
    EXPECT_EQ(screen.log[0].color, HintBlack);
    EXPECT_EQ(game.EntryNumber, 1);
    EXPECT_EQ(game.LastEntryKey, "-1HINT: Move   1 from A");
}

TEST_F(Narration, EntryNumbersGrowPastThreeDigits)
{
    game.EntryNumber = 999;
    game.ListMove(SideHuman, "x");
    EXPECT_EQ(Moves().back(), "#1000>x");
}

TEST_F(Narration, EachComputerStepWaitsForItsClickBeforeItIsListed)
{
    game.PauseAtMoves = true;
    std::vector<std::string> seenWhilePaused;
    screen.onDoEvents = [&] {
        seenWhilePaused.push_back(screen.messCaption);
        EXPECT_TRUE(screen.messEnabled);
        EXPECT_FALSE(screen.commandFrameEnabled);
        EXPECT_EQ(game.WaitingForClick, 1);
        // The board on the screen still stands as before the reply.
        EXPECT_EQ(screen.tags[12], "3");
        game.Mess_Click();
    };
    screen.calls.clear();
    Click(0);
    EXPECT_EQ(seenWhilePaused,
              (std::vector<std::string>{"Computer move> Move   3 from B; click to continue",
                                        "Computer move> Last pot A is empty: 4 taken; click to "
                                        "continue"}));
    const auto order = [&] {
        std::vector<std::string> picked;
        for (const auto& call : screen.calls)
            if (call.starts_with("mess:") || call.starts_with("add:#") || call == "doevents")
                picked.push_back(call);
        return picked;
    }();
    EXPECT_EQ(order, (std::vector<std::string>{
                         "add:#001>Move   3 from A",
                         "mess:Computer move> Move   3 from B; click to continue",
                         "doevents",
                         "add:#002>Move   3 from B",
                         "mess:Computer move> Last pot A is empty: 4 taken; click to continue",
                         "doevents",
                         "add:#003>Last pot A is empty: 4 taken",
                         "mess:YOUR MOVE NOW",
                     }));
    EXPECT_FALSE(screen.messEnabled);
    EXPECT_TRUE(screen.commandFrameEnabled);
    EXPECT_EQ(game.WaitingForClick, 0);
}

TEST_F(Narration, PotsKeysAndTheCommandsAreTurnedAwayDuringAPause)
{
    game.PauseAtMoves = true;
    bool tried = false;
    screen.onDoEvents = [&] {
        if (!tried) {
            tried = true;
            const auto board = game.Beads;
            const auto lines = screen.log.size();
            Click(1);
            game.Pots_MouseUp(2, 2, 0, 0, 0);
            Key(KeyEnter);
            Key(65);
            game.Undox_Click();
            game.TakeComp_Click();
            game.GiveHint_MouseDown(1, 0, 0, 0);
            EXPECT_EQ(game.Beads, board);
            EXPECT_EQ(screen.log.size(), lines);
            EXPECT_FALSE(game.HintActive);
        }
        game.Mess_Click();
    };
    Click(0);
    EXPECT_TRUE(tried);
    EXPECT_EQ(Board(), "0 4 4 4 3 3 |0| 3 3 3 3 0 0 |6");
}

TEST_F(Narration, PausingTurnedOffRunsTheReplyThroughAndKeepsTheBarDisabled)
{
    game.PauseAtMoves = false;
    Click(2);
    EXPECT_EQ(screen.doEventsCalls, 0);
    EXPECT_FALSE(screen.messEnabled);
    EXPECT_EQ(screen.CallsStartingWith("mess:Computer move>").size(), 0u);
}
