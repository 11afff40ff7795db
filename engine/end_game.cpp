#include "engine/game.h"

#include "common/numbers.h"

#include <cstdlib>

// One pot's face from Beads. An empty human pot takes no clicks, but while a hint
// shows all six stay open.
void Game::RefreshPot(int16_t Slot)
{
    if (!isSlot(Slot))
        return;
    m_screen.DrawPot(Slot, digits(Beads[Slot]));
    // The computer's pots and the banks keep their enabled state.
    if (!isHumanPot(Slot))
        return;
    m_screen.setPotEnabled(Slot, Beads[Slot] != 0 || HintActive);
}

void Game::UpdateBoard()
{
    // The screen shows the true sides, also in the middle of a hint.
    if (BoardMirrored)
        SwapSides();
    for (int16_t s = LastComputerPot; s >= FirstComputerPot; --s)
        RefreshPot(s);
    RefreshPot(ComputerBank);
    RefreshPot(HumanBank);
    for (int16_t s = FirstHumanPot; s <= LastHumanPot; ++s)
        RefreshPot(s);
    RunningTotals[1] = clampCount(TotalsAtGameStart[1] + Beads[ComputerBank]);
    RunningTotals[2] = clampCount(TotalsAtGameStart[2] + Beads[HumanBank]);
    writeTotals();
    if (BoardMirrored)
        SwapSides();
}

void Game::writeTotals()
{
    m_screen.setTotalBCaption(1, digits(RunningTotals[1]));
    m_screen.setTotalBCaption(2, digits(RunningTotals[2]));
}

void Game::EndGame()
{
    UpdateBoard();
    // Only the banks count: beads left in the pots go to nobody and stay where they lie.
    const int margin = Beads[HumanBank] - Beads[ComputerBank];
    std::string result;
    if (margin > 0) {
        result = "YOU WIN BY " + numberText(margin) + " POINTS";
        m_screen.scoreWin(true);
    } else if (margin < 0) {
        result = "COMPUTER WINS BY " + numberText(std::abs(margin)) + " POINTS";
        m_screen.scoreWin(false);
    } else {
        result = "GAME DRAWN";
        m_screen.scoreDraw(true);
    }
    std::string line = result;
    m_screen.movesListAdditem(line, -1);
    GameFinished = true;
    for (int16_t s = 0; s < SlotCount; ++s)
        m_screen.setPotEnabled(s, false);
    m_screen.setMessCaption(result + " - click here to restart");
    m_screen.setMessEnabled(true);
    m_screen.showMess();
    EntryNumber = 0;
}
