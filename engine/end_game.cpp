#include "engine/game.h"

#include "engine/number_text.h"

#include <cstdlib>

void Game::UpdateBoard()
{
    // The screen shows the true sides, also in the middle of a hint.
    if (BoardMirrored)
        SwapSides();
    for (int16_t s = 12; s >= 7; --s)
        screen_.RefreshPot(s);
    screen_.RefreshPot(ComputerBank);
    screen_.RefreshPot(HumanBank);
    for (int16_t s = 0; s <= 5; ++s)
        screen_.RefreshPot(s);
    RunningTotals[1] = ClampCount(TotalsAtGameStart[1] + Beads[ComputerBank]);
    RunningTotals[2] = ClampCount(TotalsAtGameStart[2] + Beads[HumanBank]);
    WriteTotals();
    if (BoardMirrored)
        SwapSides();
}

void Game::WriteTotals()
{
    screen_.SetTotalBCaption(1, Digits(RunningTotals[1]));
    screen_.SetTotalBCaption(2, Digits(RunningTotals[2]));
}

void Game::EndGame()
{
    UpdateBoard();
    // Only the banks count: beads left in the pots go to nobody and stay where they lie.
    const int margin = Beads[HumanBank] - Beads[ComputerBank];
    std::string result;
    if (margin > 0) {
        result = "YOU WIN BY " + NumberText(margin) + " POINTS";
        screen_.Score1_ScoreWin(true);
    } else if (margin < 0) {
        result = "COMPUTER WINS BY " + NumberText(std::abs(margin)) + " POINTS";
        screen_.Score1_ScoreWin(false);
    } else {
        result = "GAME DRAWN";
        screen_.Score1_ScoreDraw(true);
    }
    std::string line = result;
    screen_.MovesList_Additem(line, -1);
    GameFinished = true;
    for (int16_t s = 0; s < SlotCount; ++s)
        screen_.SetPotEnabled(s, false);
    screen_.SetMessCaption(result + " - click here to restart");
    screen_.SetMessEnabled(true);
    screen_.ShowMess();
    EntryNumber = 0;
}
