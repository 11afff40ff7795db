#include "game_fixture.h"
#include "reference_rules.h"

namespace {

ref::Ring toRing(const Board& board)
{
    ref::Ring ring{};
    std::copy(board.begin(), board.end(), ring.begin());
    return ring;
}

// The human's whole turn played by the computer's rules on the turned board.
ref::Ring advisedPosition(const Board& board)
{
    ref::Ring b = ref::turned(toRing(board));
    ref::computerTurn(b);
    return ref::turned(b);
}

} // namespace

using ForcedTurn = GameTest;

// The human's part has a capture and an extra move: only its "Move" lines say who
// played, all of it is green and numbered and never pauses; the reply pauses.
TEST_F(ForcedTurn, PlaysTheHumansPartInGreenWithoutPausing)
{
    setBoard("0 5 0 3 0 1 |0| 3 3 3 3 3 3 |0");
    state.PauseAtMoves = true;
    game.TakeComp_Click();

    bool sawExtra = false, sawCapture = false;
    auto line = screen.log.rbegin() + 2;
    for (; line != screen.log.rend() && line->color == HumanGreen; ++line) {
        ASSERT_EQ(line->text.substr(0, 1), "#");
        const std::string text = line->text.substr(5);
        EXPECT_EQ(text.ends_with(" - computer played"), text.starts_with("Move ")) << text;
        sawExtra = sawExtra || text.starts_with("Last entry");
        sawCapture = sawCapture || text.starts_with("Last pot");
    }
    EXPECT_TRUE(sawExtra);
    EXPECT_TRUE(sawCapture);
    const auto red = std::distance(line, screen.log.rend());
    EXPECT_GT(red, 0);
    EXPECT_EQ(screen.pendingEventRuns, red);
}

using Hint = GameTest;

// A hint whose first move ends in the bank shows the end of the chain, lists its first
// line only and points at its first pot; it never pauses and puts everything back.
TEST_F(Hint, AChainPointsAtItsFirstMove)
{
    const char* start = "0 0 0 3 0 1 |0| 3 3 3 3 3 3 |0";
    setBoard(start);
    const ref::Ring shown = advisedPosition(state.Beads);
    state.PauseAtMoves = true;
    hintDown();

    EXPECT_EQ(moves(), (std::vector<std::string>{"HINT: Move   1 from F"}));
    EXPECT_EQ(screen.log[0].color, HintBlack);
    EXPECT_EQ(state.EntryNumber, 0);
    EXPECT_EQ(screen.handLeft, RecordingScreen::letterLeft[5]);
    EXPECT_EQ(screen.handTop, RecordingScreen::letterTop);
    EXPECT_EQ(state.HintPotShown, 12);
    for (int s = 0; s < SlotCount; ++s) {
        const std::string face =
            shown[s] == 0 && !isBank(s) ? std::string() : std::to_string(shown[s]);
        EXPECT_EQ(screen.tags[s], face) << "slot " << s;
    }
    EXPECT_EQ(screen.totalB[2], std::to_string(shown[HumanBank]));
    EXPECT_TRUE(screen.potEnabled[0]) << "human pots stay enabled while a hint shows";
    expectNoMoveStarts();

    hintUp();
    EXPECT_EQ(board(), start);
    EXPECT_FALSE(screen.potEnabled[0]);
    EXPECT_FALSE(screen.handShown);
    EXPECT_TRUE(state.PauseAtMoves);
    EXPECT_EQ(screen.pendingEventRuns, 0);
}
