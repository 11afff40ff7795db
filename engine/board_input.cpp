#include "engine/game.h"

#include "common/numbers.h"

// A human pot with beads under the mouse looks hollow; only one pot at a time.
void Game::Pots_MouseMove(int16_t Index, int16_t Button, int16_t Shift, float X, float Y)
{
    (void)Button, (void)Shift, (void)X, (void)Y;
    if (Index == HoverPot || Index > LastHumanPot || Index < FirstHumanPot)
        return;
    if (HoverPot != NoSlot)
        m_screen.DrawPot(HoverPot, m_screen.potTag(HoverPot));
    m_screen.DrawPotHot(Index, m_screen.potTag(Index));
    HoverPot = Index;
}

// The mouse over the window's own surface ends the hover look, and the first move
// after a hint forgets the keyboard's selection.
void Game::Form_MouseMove(int16_t Button, int16_t Shift, float X, float Y)
{
    (void)Button, (void)Shift, (void)X, (void)Y;
    if (HintPotShown > NoSlot) {
        HintPotShown = NoSlot;
        KeyboardPot = NoSlot;
    }
    if (HoverPot != NoSlot) {
        m_screen.DrawPot(HoverPot, m_screen.potTag(HoverPot));
        HoverPot = NoSlot;
    }
}

// While the right button is held on a pot the faces show where its beads would fall.
// Only the faces and their Tags change; the release repaints them from Beads.
void Game::Pots_MouseDown(int16_t Index, int16_t Button, int16_t Shift, float X, float Y)
{
    (void)Shift, (void)X, (void)Y;
    if (Button != 2 || !isSlot(Index))
        return;
    // A sowing shown in the middle of a computer's move or a hint would never be taken
    // back: the release is turned away there too.
    if (busy() || GameFinished)
        return;
    PreviewActive = true;
    PreviewBeads = Beads;
    const int n = PreviewBeads[Index];
    m_screen.DrawPot(Index, "0");
    // The sowing done on the Tags: each step reads what the last one wrote.
    for (int k = 1; k <= n; ++k) {
        const auto j = static_cast<int16_t>((Index + k) % SlotCount);
        const auto shown = static_cast<long long>(numericRead(m_screen.potTag(j)));
        m_screen.DrawPot(j, digits(shown + 1));
    }
}

// Any key walks the selection along the human's pots that hold beads, from A to F
// and round; Enter plays the selected pot as a left click would. During a pause the
// walk goes on, and Pots_MouseUp turns Enter's move away.
void Game::Form_KeyDown(int16_t KeyCode, int16_t Shift)
{
    (void)Shift;
    // While a hint is held the board is turned: there is nothing to walk over.
    if (GameFinished || HintActive)
        return;
    if (isHumanPot(KeyboardPot) && Beads[KeyboardPot] > 0 && KeyCode == KeyEnter) {
        Pots_MouseUp(KeyboardPot, 1, 0, 0.1f, 0.1f);
        return;
    }
    // The first key only selects A, whatever it holds.
    if (!isHumanPot(KeyboardPot)) {
        KeyboardPot = FirstHumanPot;
        return;
    }
    auto step = [this] {
        KeyboardPot =
            static_cast<int16_t>(KeyboardPot == LastHumanPot ? FirstHumanPot : KeyboardPot + 1);
    };
    step();
    for (int tries = 0; tries < PotsPerRow; ++tries) {
        if (Beads[KeyboardPot] > 0)
            return;
        step();
    }
}

void Game::StartBeads_Change()
{
    const int16_t value = m_screen.startBeadsValue();
    // The count cannot change under a running move or a held hint: the slider goes back.
    if (busy() || value < 2 || value > 99) {
        m_screen.setStartBeadsValue(StartBeadCount);
        return;
    }
    m_screen.setLabel2Caption("Start with " + digits(value) + " beads");
    StartBeadCount = value;
    layOutBoard(StartBeadCount);
    for (int16_t s = 0; s < SlotCount; ++s)
        RefreshPot(s);
}

// The caption names the mode in force, not what a click would do.
void Game::Pausex_Click()
{
    PauseAtMoves = !PauseAtMoves;
    m_screen.setPausexCaption(PauseAtMoves ? "Pause at moves" : "Do not pause");
}
