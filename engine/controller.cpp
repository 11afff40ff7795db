#include "engine/game.h"

#include "engine/number_text.h"

void Game::Pots_MouseUp(int16_t Index, int16_t Button, int16_t Shift, float X, float Y)
{
    (void)Shift, (void)X, (void)Y;
    if (Busy() || !IsSlot(Index))
        return;
    // The left button does nothing on the computer's row.
    if (Index > 6 && Button != 2)
        return;
    if (GameFinished)
        return;
    screen_.SetHandVisible(false);
    // The first accepted event of a game locks the bead count, a preview included.
    screen_.SetStartBeadsEnabled(false);
    if (Button == 2 && PreviewActive) {
        for (int16_t s = 0; s < SlotCount; ++s)
            screen_.RefreshPot(s);
        PreviewActive = false;
        return;
    }
    if (NumericRead(screen_.PotTag(Index)) == 0)
        return;
    Text1 = Digits(Index + 1);
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
        screen_.SetMessCaption(again);
        ListMove(SideHuman, again);
        return;
    }
    ReplyAndHandBack("YOUR MOVE NOW");
}

// The computer's whole turn, the board shown, then either the end of the game or the
// move handed back to the human with the given caption.
void Game::ReplyAndHandBack(const std::string& caption)
{
    ComputerMove();
    UpdateBoard();
    if (!GameLive)
        EndGame();
    else
        screen_.SetMessCaption(caption);
}

void Game::HumanMove(int16_t& Result)
{
    Result = 0;
    int16_t pick = 0;
    if (!NumericRead16(Text1, pick) || pick < 1 || pick > 6) {
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
    screen_.SetUndoxEnabled(true);
    TakeUndoSnapshot();
    ListMove(SideHuman, move);
    MoverBank = HumanBank;
    SowPot(CurrentPot);
    if (CaptureHolds()) {
        const int16_t taken = CreditCapture();
        ListMove(SideHuman,
                 "Last pot " + PotLetter(CurrentPot) + " is empty:" + NumberText(taken) + " taken");
        ClearCapturedPots();
    }
    CheckRows();
}

void Game::NewGame()
{
    LayOutBoard(StartBeadCount);
    // Stays false until the first move sets it; nothing reads it before.
    GameLive = false;
    TotalsAtGameStart[1] = RunningTotals[1];
    TotalsAtGameStart[2] = RunningTotals[2];
    BoardMirrored = false;
    HintActive = false;
    PreviewActive = false;
    GameFinished = false;
    KeyboardPot = -1;
    screen_.SetHandVisible(false);
}

void Game::LayOutBoard(int16_t Count)
{
    for (int s = 0; s <= 12; ++s)
        Beads[s] = Count;
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
        screen_.SetPotEnabled(s, true);
    // The banks never take clicks.
    screen_.SetPotEnabled(HumanBank, false);
    screen_.SetPotEnabled(ComputerBank, false);
    GameFinished = false;
    screen_.SetMessCaption("YOUR MOVE NOW");
    screen_.MovesList_Clear();
    NewGame();
    screen_.SetStartBeadsEnabled(true);
    screen_.SetUndoxEnabled(false);
    UpdateBoard();
    screen_.SetMessEnabled(false);
}

void Game::Form_Load()
{
    ResetForLoad();
    NewGame();
    UpdateBoard();
    LogOpeningLines();
}

void Game::ResetForLoad()
{
    StartBeadCount = 3;
    EntryNumber = 0;
    BoardMirrored = false;
    HintActive = false;
    PreviewActive = false;
    PauseAtMoves = false;
    GameFinished = false;
    RunningTotals = {};
    // NewGame copies the totals, so they are zero before it runs.
    TotalsAtGameStart = {};
    HintPotShown = -1;
    HoverPot = -1;
    KeyboardPot = -1;
    screen_.SetMessCaption("YOUR MOVE NOW");
    screen_.SetMessEnabled(false);
    screen_.SetPotEnabled(HumanBank, false);
    screen_.SetPotEnabled(ComputerBank, false);
    screen_.SetUndoxEnabled(false);
}

void Game::LogOpeningLines()
{
    LogLine("Computer is RED", ComputerRed);
    LogLine("Human is GREEN", HumanGreen);
}
