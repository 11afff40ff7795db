#include "game_fixture.h"
#include "reference_rules.h"

namespace {

ref::Ring ToRing(const Board& board)
{
    ref::Ring ring{};
    std::copy(board.begin(), board.end(), ring.begin());
    return ring;
}

std::string Format(const ref::Ring& ring)
{
    Board board{};
    std::copy(ring.begin(), ring.end(), board.begin());
    return FormatBoard(board);
}

// The human's whole turn played by the computer's rules on the turned board.
ref::Ring AdvisedPosition(ref::Ring b)
{
    b = ref::Turned(b);
    ref::ComputerTurn(b);
    return ref::Turned(b);
}

} // namespace

using ForcedTurn = GameTest;

TEST_F(ForcedTurn, AsTheFirstActionPlaysTheHumanRowThenTheReply)
{
    ref::Ring expected = AdvisedPosition(ToRing(game.Beads));
    ref::ComputerTurn(expected);
    game.TakeComp_Click();

    EXPECT_EQ(Board(), Format(expected));
    ASSERT_FALSE(Moves().empty());
    EXPECT_EQ(Moves().front(), "#001>Move   3 from F - computer played");
    EXPECT_EQ(screen.messCaption, "AGAIN YOUR MOVE NOW");
    EXPECT_TRUE(screen.startBeadsEnabled) << "a forced turn is no pot event";
    EXPECT_FALSE(screen.undoxEnabled);
    EXPECT_FALSE(game.BoardMirrored);
}

TEST_F(ForcedTurn, OnlyTheMoveLinesSayTheComputerPlayedAndAllAreGreen)
{
    const char* board = "0 5 0 3 0 1 |0| 3 3 3 3 3 3 |0";
    SetBoard(board);
    const ref::Ring afterHuman = AdvisedPosition(ToRing(game.Beads));
    game.PauseAtMoves = true; // the human's part never pauses; the reply does
    game.TakeComp_Click();

    bool sawExtra = false, sawCapture = false;
    size_t green = 0;
    for (auto it = screen.log.rbegin() + 2; it != screen.log.rend(); ++it) {
        if (it->color != HumanGreen)
            break;
        ++green;
        ASSERT_EQ(it->text.substr(0, 1), "#");
        const std::string text = it->text.substr(5);
        const bool isMove = text.starts_with("Move ");
        EXPECT_EQ(text.ends_with(" - computer played"), isMove) << text;
        sawExtra = sawExtra || text.starts_with("Last entry");
        sawCapture = sawCapture || text.starts_with("Last pot");
    }
    EXPECT_TRUE(sawExtra);
    EXPECT_TRUE(sawCapture);
    const auto red = std::count_if(screen.log.begin(), screen.log.end() - 2,
                                   [](auto& line) { return line.color == ComputerRed; });
    EXPECT_EQ(screen.doEventsCalls, red);
    EXPECT_GT(red, 0);

    ref::Ring expected = afterHuman;
    if (ref::Live(expected))
        ref::ComputerTurn(expected);
    EXPECT_EQ(Board(), Format(expected));
}

TEST_F(ForcedTurn, SpendingARowEndsTheGameBeforeTheReply)
{
    SetBoard("0 0 0 0 0 1 |0| 1 0 0 0 0 0 |0");
    game.TakeComp_Click();
    EXPECT_TRUE(game.GameFinished);
    EXPECT_EQ(screen.messCaption, "YOU WIN BY  1 POINTS - click here to restart");
    for (auto line = screen.log.begin(); line != screen.log.end() - 2; ++line)
        EXPECT_NE(line->color, ComputerRed) << line->text;
}

using Hint = GameTest;

TEST_F(Hint, ShowsTheAdvisedPositionWhileHeldAndPutsEverythingBack)
{
    const std::string start = Board();
    game.GiveHint_MouseDown(1, 0, 0, 0);

    EXPECT_EQ(Moves(), (std::vector<std::string>{"HINT: Move   3 from F"}));
    EXPECT_EQ(screen.log[0].color, HintBlack);
    EXPECT_EQ(game.EntryNumber, 0);
    EXPECT_TRUE(screen.handVisible);
    EXPECT_EQ(screen.handLeft, RecordingScreen::potNameLeft[5]);
    EXPECT_EQ(screen.handTop, RecordingScreen::potNameTop);
    EXPECT_EQ(game.HintPotShown, 12);
    EXPECT_EQ(screen.tags[5], "");
    EXPECT_EQ(screen.tags[6], "1");
    EXPECT_EQ(screen.tags[7], "4");
    EXPECT_EQ(screen.totalB[2], "1");
    EXPECT_TRUE(screen.potEnabled[5]) << "human pots stay enabled while a hint shows";

    game.GiveHint_MouseUp(1, 0, 0, 0);
    EXPECT_EQ(Board(), start);
    EXPECT_FALSE(game.BoardMirrored);
    EXPECT_FALSE(game.HintActive);
    EXPECT_EQ(screen.tags[5], "3");
    EXPECT_EQ(screen.totalB[2], "0");
    EXPECT_FALSE(screen.handVisible);
    EXPECT_EQ(game.HintPotShown, 12);
}

TEST_F(Hint, AChainShowsItsEndButListsAndPointsAtItsFirstMove)
{
    SetBoard("0 0 0 3 0 1 |0| 3 3 3 3 3 3 |0");
    const ref::Ring shown = AdvisedPosition(ToRing(game.Beads));
    game.GiveHint_MouseDown(1, 0, 0, 0);
    EXPECT_EQ(Moves(), (std::vector<std::string>{"HINT: Move   1 from F"}));
    EXPECT_EQ(screen.handLeft, RecordingScreen::potNameLeft[5]);
    for (int s = 0; s < SlotCount; ++s) {
        const std::string face =
            shown[s] == 0 && !IsBank(s) ? std::string() : std::to_string(shown[s]);
        EXPECT_EQ(screen.tags[s], face) << "slot " << s;
    }
    game.GiveHint_MouseUp(1, 0, 0, 0);
    EXPECT_EQ(Board(), "0 0 0 3 0 1 |0| 3 3 3 3 3 3 |0");
}

TEST_F(Hint, ASecondHintAddsNothingUntilAnotherLineIsListed)
{
    game.GiveHint_MouseDown(1, 0, 0, 0);
    game.GiveHint_MouseUp(1, 0, 0, 0);
    game.GiveHint_MouseDown(1, 0, 0, 0);
    game.GiveHint_MouseUp(1, 0, 0, 0);
    SetBoard("0 0 0 3 0 1 |0| 3 3 3 3 3 3 |0");
    game.GiveHint_MouseDown(1, 0, 0, 0);
    game.GiveHint_MouseUp(1, 0, 0, 0);
    EXPECT_EQ(Moves().size(), 1u);

    Click(3);
    game.GiveHint_MouseDown(1, 0, 0, 0);
    EXPECT_TRUE(Moves().back().starts_with("HINT: ")) << Moves().back();
}

TEST_F(Hint, NeverPausesAndLeavesThePauseModeAsItWas)
{
    game.PauseAtMoves = true;
    game.GiveHint_MouseDown(1, 0, 0, 0);
    EXPECT_TRUE(game.PauseAtMoves);
    game.GiveHint_MouseUp(1, 0, 0, 0);
    EXPECT_TRUE(game.PauseAtMoves);
    EXPECT_EQ(screen.doEventsCalls, 0);
}

TEST_F(Hint, PotsAndKeysWaitWhileTheHintIsHeld)
{
    game.GiveHint_MouseDown(1, 0, 0, 0);
    const auto shown = game.Beads;
    Click(0);
    game.KeyboardPot = 0;
    Key(KeyEnter);
    game.TakeComp_Click();
    EXPECT_EQ(game.Beads, shown);
    game.GiveHint_MouseUp(1, 0, 0, 0);
    EXPECT_EQ(Board(), "3 3 3 3 3 3 |0| 3 3 3 3 3 3 |0");
}
