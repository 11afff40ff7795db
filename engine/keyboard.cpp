#include "engine/game.h"

// Any key walks the selection along the human's pots that hold beads, from A to F
// and round; Enter plays the selected pot as a left click would.
void Game::Form_KeyDown(int16_t KeyCode, int16_t Shift)
{
    (void)Shift;
    if (GameFinished || Busy())
        return;
    if (IsHumanPot(KeyboardPot) && Beads[KeyboardPot] > 0 && KeyCode == KeyEnter) {
        Pots_MouseUp(KeyboardPot, 1, 0, 0.1f, 0.1f);
        return;
    }
    // The first key only selects A, whatever it holds.
    if (!IsHumanPot(KeyboardPot)) {
        KeyboardPot = 0;
        return;
    }
    auto step = [this] {
        KeyboardPot = static_cast<int16_t>(KeyboardPot == 5 ? 0 : KeyboardPot + 1);
    };
    step();
    for (int tries = 0; tries < 6; ++tries) {
        if (Beads[KeyboardPot] > 0)
            return;
        step();
    }
}
