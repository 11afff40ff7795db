#include "engine/game.h"

#include <algorithm>

void Game::TakeUndoSnapshot()
{
    std::copy(Beads.begin(), Beads.end(), UndoBeads.begin());
    UndoBeads[14] = RunningTotals[1];
    UndoBeads[15] = RunningTotals[2];
}

// Takes back the human's last move and all the computer did after it. The log keeps
// the taken-back lines; the undo line follows them.
void Game::Undox_Click()
{
    if (GameFinished || Busy())
        return;
    for (int16_t s = 0; s < SlotCount; ++s) {
        Beads[s] = UndoBeads[s];
        screen_.RefreshPot(s);
    }
    RunningTotals[1] = UndoBeads[14];
    RunningTotals[2] = UndoBeads[15];
    WriteTotals();
    std::string line = "UNDO LAST HUMAN/COMPUTER MOVE";
    screen_.MovesList_Additem(line, -1);
    screen_.SetUndoxEnabled(false);
}
