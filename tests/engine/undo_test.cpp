#include "game_fixture.h"

using Undo = GameTest;

namespace {
const char* const start = "3 3 3 3 3 3 |0| 3 3 3 3 3 3 |0";
}

TEST_F(Undo, TakesBackTheHumanMoveAndTheWholeReply)
{
    Click(0);
    ASSERT_NE(Board(), start);
    const auto lines = Log();
    const auto entry = game.EntryNumber;
    game.Undox_Click();

    EXPECT_EQ(Board(), start);
    EXPECT_EQ(screen.totalB[1], "0");
    EXPECT_EQ(screen.totalB[2], "0");
    auto expected = lines;
    expected.push_back("UNDO LAST HUMAN/COMPUTER MOVE");
    EXPECT_EQ(Log(), expected);
    EXPECT_EQ(screen.log[0].color, -1) << "the undo line takes the list's own colour";
    EXPECT_FALSE(screen.undoxEnabled);
    EXPECT_FALSE(screen.startBeadsEnabled) << "the bead count stays locked";
    EXPECT_EQ(screen.messCaption, "YOUR MOVE NOW");
    EXPECT_EQ(game.EntryNumber, entry);
    for (int s = 0; s <= 5; ++s)
        EXPECT_EQ(screen.potEnabled[s], game.Beads[s] > 0) << "slot " << s;

    // The human simply moves again; the numbering goes on.
    Click(0);
    EXPECT_EQ(Log()[lines.size() + 1], "#004>Move   3 from A");
}

TEST_F(Undo, AfterAChainOfExtraMovesOnlyTheLastIsTakenBack)
{
    Click(3); // D ends in the bank
    ASSERT_EQ(screen.messCaption, "Last entry into the bank; move again");
    const std::string afterD = "3 3 3 0 4 4 |1| 3 3 3 3 3 3 |0";
    ASSERT_EQ(Board(), afterD);
    EXPECT_TRUE(screen.undoxEnabled);
    Click(5);
    game.Undox_Click();
    EXPECT_EQ(Board(), afterD);
    EXPECT_EQ(screen.totalB[2], "1");
}

TEST_F(Undo, AForcedTurnIsTakenBackWithTheHumanMoveBeforeIt)
{
    Click(1);
    game.TakeComp_Click();
    ASSERT_TRUE(screen.undoxEnabled);
    game.Undox_Click();
    EXPECT_EQ(Board(), start);
}

TEST_F(Undo, AForcedTurnTakesNoSnapshot)
{
    game.TakeComp_Click();
    EXPECT_FALSE(screen.undoxEnabled);
    EXPECT_EQ(game.UndoBeads, (std::array<int16_t, 16>{}));
}

TEST_F(Undo, TheSnapshotHoldsTheTotalsOfThatMoment)
{
    game.TotalsAtGameStart = {0, 7, 11};
    SetBoard("3 3 3 3 3 3 |2| 3 3 3 3 3 3 |4");
    Click(2);
    EXPECT_EQ(game.UndoBeads[14], 11);
    EXPECT_EQ(game.UndoBeads[15], 13);
    game.Undox_Click();
    EXPECT_EQ(screen.totalB[1], "11");
    EXPECT_EQ(screen.totalB[2], "13");
    // The next showing of the board arrives at the same numbers from the banks.
    game.UpdateBoard();
    EXPECT_EQ(screen.totalB[1], "11");
    EXPECT_EQ(screen.totalB[2], "13");
}
