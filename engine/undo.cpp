#include "engine/game.h"

#include <algorithm>

void Game::takeUndoSnapshot()
{
    std::copy(Beads.begin(), Beads.end(), UndoBeads.begin());
    UndoBeads[14] = RunningTotals[1];
    UndoBeads[15] = RunningTotals[2];
}

// Takes back the human's last move and all the computer did after it. The log keeps
// the taken-back lines; the undo line follows them.
void Game::Undox_Click()
{
    if (GameFinished || busy())
        return;
    for (int16_t s = 0; s < SlotCount; ++s) {
        Beads[s] = UndoBeads[s];
        RefreshPot(s);
    }
    RunningTotals[1] = UndoBeads[14];
    RunningTotals[2] = UndoBeads[15];
    writeTotals();
    std::string line = "UNDO LAST HUMAN/COMPUTER MOVE";
    m_screen.movesListAdditem(line, -1);
    m_screen.setUndoxEnabled(false);
}
