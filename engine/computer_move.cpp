#include "engine/game.h"

#include "common/numbers.h"

#include <algorithm>

// One move of its own, one reply of the other row: the difference of the banks
// after trying the pot, less the greatest capture the other row could then make.
// The try-out runs on the real board and is put back from SavedBeads.
int Game::evaluatePot(int16_t Pot)
{
    SowPot(Pot);
    if (captureHolds()) {
        creditCapture();
        clearCapturedPots();
    }

    int threat = 0;
    for (int k = FirstHumanPot; k <= LastHumanPot; ++k) {
        if (Beads[k] < 1)
            continue;
        int landing = k + Beads[k];
        // One mark for any number of laps; the scan does not sow, so a lap that would
        // fill its own landing slot still counts as landing in an empty pot.
        int lap = 0;
        if (landing > ComputerBank) {
            landing %= SlotCount;
            lap = 1;
        }
        int value = lap;
        if (Beads[landing] == 0 && !isBank(landing))
            value = Beads[opposite(landing)] + lap;
        threat = std::max(threat, value);
    }

    const int score = Beads[ComputerBank] - Beads[HumanBank] - threat;
    Beads = SavedBeads;
    return score;
}

void Game::ComputerMove()
{
    computerMoving = true;
    selectAndPlay();
    computerMoving = false;
}

// One pass a move, and another for as long as the last bead falls in the own bank.
void Game::selectAndPlay()
{
    for (;;) {
        MoverBank = ComputerBank;
        SavedBeads = Beads;
        // Greater-or-equal: of equal scores the last pot tried wins, the one nearest
        // the own bank. Starting below any score means a hopeless position still
        // plays its best pot rather than none.
        bool found = false;
        int best = 0;
        for (int16_t p = FirstComputerPot; p <= LastComputerPot; ++p) {
            if (Beads[p] < 1)
                continue;
            const int score = evaluatePot(p);
            if (!found || score >= best) {
                best = score;
                ChosenPot = p;
                found = true;
            }
        }
        CurrentPot = ChosenPot;
        if (!found) {
            // Only after an extra move that spent the own row: nothing to sow.
            CheckRows();
            if (HintActive)
                showHintPass();
            return;
        }
        playChosenPot();
        if (CurrentPot != MoverBank)
            return;
        std::string again = "Last entry into the bank; move again";
        if (HintActive)
            again = "HINT: " + again;
        ListMove(moveSide(), again);
    }
}

// A forced turn plays the human's row and narrates in green; a hint in black.
int16_t Game::moveSide() const
{
    if (HintActive)
        return SideHint;
    return BoardMirrored ? SideHuman : SideComputer;
}

void Game::playChosenPot()
{
    const int16_t side = moveSide();
    const std::string prefix = HintActive ? "HINT: " : "";
    std::string move =
        prefix + "Move " + StrCount(Beads[CurrentPot]) + " from " + PotLetter(CurrentPot);
    // Only the "Move" line of a forced turn says who played it.
    if (BoardMirrored && !HintActive)
        move += " - computer played";
    if (Beads[CurrentPot] != 0)
        ListMove(side, move);
    SowPot(CurrentPot);
    if (captureHolds()) {
        const int16_t taken = creditCapture();
        ListMove(side, prefix + "Last pot " + PotLetter(CurrentPot) +
                           " is empty:" + numberText(taken) + " taken");
        clearCapturedPots();
    }
    CheckRows();
    if (HintActive)
        showHintPass();
}

// After each pass of a hint: the board as the advice leaves it, and the hand over
// the letter of the first advised pot.
void Game::showHintPass()
{
    UpdateBoard();
    if (HintPot == 0)
        HintPot = ChosenPot;
    if (!isComputerPot(ChosenPot) || m_screen.handVisible())
        return;
    const auto letter = static_cast<int16_t>(ChosenPot - FirstComputerPot);
    m_screen.setHandLeft(m_screen.potNameLeft(letter));
    m_screen.setHandTop(m_screen.potNameTop(letter));
    m_screen.setHandVisible(true);
}
