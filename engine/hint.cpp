#include "engine/game.h"

// The computer plays the human's move for good: the board is turned by half a circle
// so that ComputerMove finds the human's row where it looks for its own.
void Game::TakeComp_Click()
{
    if (GameFinished || busy())
        return;
    BoardMirrored = true;
    SwapSides();
    ComputerMove();
    UpdateBoard();
    SwapSides();
    BoardMirrored = false;
    if (!GameLive) {
        EndGame();
        return;
    }
    replyAndHandBack("AGAIN YOUR MOVE NOW");
}

// While the button is held the board shows where the advised move leads and the hand
// points at the pot to play; the release puts everything back.
void Game::GiveHint_MouseDown(int16_t Button, int16_t Shift, float X, float Y)
{
    (void)Button, (void)Shift, (void)X, (void)Y;
    if (GameFinished || busy())
        return;
    HintSavedBeads = Beads;
    PauseAtMovesSaved = PauseAtMoves;
    PauseAtMoves = false;
    BoardMirrored = true;
    SwapSides();
    HintActive = true;
    HintPot = 0;
    ComputerMove();
    HintPotShown = HintPot;
    m_screen.setHandVisible(true);
    PauseAtMoves = PauseAtMovesSaved;
}

void Game::GiveHint_MouseUp(int16_t Button, int16_t Shift, float X, float Y)
{
    (void)Button, (void)Shift, (void)X, (void)Y;
    if (GameFinished || !HintActive)
        return;
    HintActive = false;
    SwapSides();
    BoardMirrored = false;
    Beads = HintSavedBeads;
    UpdateBoard();
    PauseAtMoves = PauseAtMovesSaved;
    m_screen.setHandVisible(false);
}
