#include "game_fixture.h"

using Controller = GameTest;

TEST_F(Controller, LoadShowsAFreshBoardReadyForTheHuman)
{
    for (int s = 0; s < SlotCount; ++s)
        EXPECT_EQ(screen.tags[s], IsBank(s) ? "0" : "3") << "slot " << s;
    EXPECT_EQ(screen.totalB[1], "0");
    EXPECT_EQ(screen.totalB[2], "0");
    EXPECT_EQ(screen.messCaption, "YOUR MOVE NOW");
    EXPECT_FALSE(screen.messEnabled);
    EXPECT_FALSE(screen.undoxEnabled);
    EXPECT_FALSE(screen.potEnabled[HumanBank]);
    EXPECT_FALSE(screen.potEnabled[ComputerBank]);
    EXPECT_FALSE(screen.handVisible);
    EXPECT_EQ(game.KeyboardPot, -1);
    EXPECT_EQ(game.HintPotShown, -1);
    EXPECT_EQ(game.HoverPot, -1);
}

TEST_F(Controller, TheLeftButtonDoesNothingOnTheComputersRow)
{
    screen.handVisible = true;
    game.Pots_MouseUp(9, 1, 0, 0, 0);
    EXPECT_TRUE(screen.handVisible);
    EXPECT_TRUE(screen.startBeadsEnabled);
    EXPECT_TRUE(Moves().empty());
}

TEST_F(Controller, ReleasingAPreviewLocksTheBeadCountAndPlaysNothing)
{
    game.PreviewActive = true;
    screen.tags[2] = "";
    screen.tags[3] = "4";
    screen.calls.clear();
    game.Pots_MouseUp(2, 2, 0, 0, 0);
    EXPECT_FALSE(screen.startBeadsEnabled);
    EXPECT_FALSE(game.PreviewActive);
    EXPECT_EQ(screen.tags[2], "3");
    EXPECT_EQ(screen.tags[3], "3");
    std::vector<std::string> expected;
    for (int s = 0; s < SlotCount; ++s)
        expected.push_back("refresh:" + std::to_string(s));
    EXPECT_EQ(screen.CallsStartingWith("refresh:"), expected);
    EXPECT_TRUE(Moves().empty());
}

TEST_F(Controller, ALastBeadInTheOwnBankGivesAnotherMove)
{
    Click(3);
    EXPECT_EQ(Board(), "3 3 3 0 4 4 |1| 3 3 3 3 3 3 |0");
    EXPECT_EQ(screen.messCaption, "Last entry into the bank; move again");
    EXPECT_EQ(Moves(), (std::vector<std::string>{"#001>Move   3 from D",
                                                 "#002>Last entry into the bank; move again"}));
    EXPECT_EQ(screen.log[0].color, HumanGreen);
    EXPECT_TRUE(screen.undoxEnabled);
    EXPECT_EQ(screen.totalB[2], "1");
}

TEST_F(Controller, AHumanCaptureIsToldAndCanEndTheGame)
{
    SetBoard("1 0 1 0 0 0 |0| 0 0 0 0 3 0 |0");
    Click(0);
    EXPECT_EQ(Moves(),
              (std::vector<std::string>{"#001>Move   1 from A", "#002>Last pot B is empty: 3 taken",
                                        "YOU WIN BY  4 POINTS"}));
    EXPECT_EQ(Board(), "0 0 1 0 0 0 |4| 0 0 0 0 0 0 |0");
    EXPECT_TRUE(game.GameFinished);
}

TEST_F(Controller, BadPicksAreRefusedAndChangeNothing)
{
    SetBoard("3 0 3 3 3 3 |0| 3 3 3 3 3 3 |0");
    const auto board = game.Beads;
    for (const char* pick : {"0", "7", "-1", "", "abc", "99999", "1e9", "2"}) {
        game.Text1 = pick;
        int16_t result = 0;
        game.HumanMove(result);
        EXPECT_EQ(result, -1) << "pick '" << pick << "'";
        EXPECT_EQ(game.Beads, board) << "pick '" << pick << "'";
    }
    EXPECT_TRUE(Moves().empty());
    EXPECT_FALSE(screen.undoxEnabled);

    // A pick may come with blanks before it, as any number read by the game.
    game.Text1 = " 3";
    int16_t result = -1;
    game.HumanMove(result);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(Moves().front(), "#001>Move   3 from C");
}

TEST_F(Controller, EventsFromNowhereAreIgnored)
{
    const auto board = game.Beads;
    for (int16_t index : {-1, 14, 200, -32768})
        for (int16_t button : {1, 2})
            game.Pots_MouseUp(index, button, 0, 0, 0);
    screen.tags[1] = "";
    Click(1); // a pot whose face shows nothing takes no move
    EXPECT_EQ(game.Beads, board);
    EXPECT_TRUE(Moves().empty());
}
