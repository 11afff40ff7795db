#include "engine/game.h"

#include "common/numbers.h"

// The start of the program: the window has set up its score board; the rest is ours,
// with the slider, its label and the log's look told to the screen in their turn.
void Game::Form_Load()
{
    StartBeadCount = 3;
    EntryNumber = 0;
    // The slider stood at its stored 99, so this lays out the board through
    // StartBeads_Change.
    m_screen.setStartBeadsValue(StartBeadCount);
    m_screen.setLabel2Caption("Start with " + digits(StartBeadCount) + " beads");
    HintPotShown = NoSlot;
    HoverPot = NoSlot;
    KeyboardPot = NoSlot;
    BoardMirrored = false;
    HintActive = false;
    PreviewActive = false;
    PauseAtMoves = false;
    GameFinished = false;
    // NewGame copies the totals, so they are zero before it runs.
    RunningTotals = {};
    TotalsAtGameStart = {};
    m_screen.setMessCaption("YOUR MOVE NOW");
    m_screen.setMessEnabled(false);
    m_screen.setPotEnabled(HumanBank, false);
    m_screen.setPotEnabled(ComputerBank, false);
    m_screen.setUndoxEnabled(false);
    NewGame();
    UpdateBoard();
    m_screen.setUpMovesList();
    logLine("Computer is RED", ComputerRed);
    logLine("Human is GREEN", HumanGreen);
}

void Game::Pots_MouseUp(int16_t Index, int16_t Button, int16_t Shift, float X, float Y)
{
    (void)Shift, (void)X, (void)Y;
    if (busy() || !isSlot(Index))
        return;
    // The left button does nothing on the computer's row.
    if (Index > HumanBank && Button != 2)
        return;
    if (GameFinished)
        return;
    m_screen.setHandVisible(false);
    // The first accepted event of a game locks the bead count, a preview included.
    m_screen.setStartBeadsEnabled(false);
    if (Button == 2 && PreviewActive) {
        for (int16_t s = 0; s < SlotCount; ++s)
            RefreshPot(s);
        PreviewActive = false;
        return;
    }
    if (numericRead(m_screen.potTag(Index)) == 0)
        return;
    Text1 = digits(Index + 1);
    int16_t Result = 0;
    HumanMove(Result);
    UpdateBoard();
    // A move that spends a row ends the game at once, even with its last bead in
    // the bank.
    if (!GameLive) {
        EndGame();
        return;
    }
    if (Result == -1)
        return;
    if (CurrentPot == MoverBank) {
        const std::string again = "Last entry into the bank; move again";
        m_screen.setMessCaption(again);
        ListMove(SideHuman, again);
        return;
    }
    replyAndHandBack("YOUR MOVE NOW");
}

// The computer's whole turn, the board shown, then either the end of the game or the
// move handed back to the human with the given caption.
void Game::replyAndHandBack(const std::string& caption)
{
    ComputerMove();
    UpdateBoard();
    if (!GameLive)
        EndGame();
    else
        m_screen.setMessCaption(caption);
}

void Game::HumanMove(int16_t& Result)
{
    Result = 0;
    int16_t pick = 0;
    if (!numericRead16(Text1, pick) || pick < 1 || pick > 6) {
        Result = -1;
        return;
    }
    CurrentPot = static_cast<int16_t>(pick - 1);
    if (Beads[CurrentPot] == 0) {
        Result = -1;
        return;
    }
    const std::string move =
        "Move " + StrCount(Beads[CurrentPot]) + " from " + PotLetter(CurrentPot);
    // The snapshot comes before anything on the board changes.
    m_screen.setUndoxEnabled(true);
    takeUndoSnapshot();
    ListMove(SideHuman, move);
    MoverBank = HumanBank;
    SowPot(CurrentPot);
    if (captureHolds()) {
        const int16_t taken = creditCapture();
        ListMove(SideHuman,
                 "Last pot " + PotLetter(CurrentPot) + " is empty:" + numberText(taken) + " taken");
        clearCapturedPots();
    }
    CheckRows();
}

void Game::NewGame()
{
    layOutBoard(StartBeadCount);
    // Stays false until the first move sets it; nothing reads it before.
    GameLive = false;
    TotalsAtGameStart[1] = RunningTotals[1];
    TotalsAtGameStart[2] = RunningTotals[2];
    BoardMirrored = false;
    HintActive = false;
    PreviewActive = false;
    GameFinished = false;
    KeyboardPot = NoSlot;
    m_screen.setHandVisible(false);
}

void Game::layOutBoard(int16_t count)
{
    for (int s = FirstHumanPot; s <= LastComputerPot; ++s)
        Beads[s] = count;
    Beads[HumanBank] = 0;
    Beads[ComputerBank] = 0;
}

void Game::Mess_Click()
{
    WaitingForClick = 0;
    // Otherwise the click released a pause, or came with no game to restart.
    if (!GameFinished)
        return;
    for (int16_t s = 0; s < SlotCount; ++s)
        m_screen.setPotEnabled(s, true);
    // The banks never take clicks.
    m_screen.setPotEnabled(HumanBank, false);
    m_screen.setPotEnabled(ComputerBank, false);
    GameFinished = false;
    m_screen.setMessCaption("YOUR MOVE NOW");
    m_screen.movesListClear();
    NewGame();
    m_screen.setStartBeadsEnabled(true);
    m_screen.setUndoxEnabled(false);
    UpdateBoard();
    m_screen.setMessEnabled(false);
}
