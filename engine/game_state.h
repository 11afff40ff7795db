#pragma once

#include "engine/board.h"

#include <array>
#include <cstdint>
#include <string>

// The state of Form1: everything the game knows, as plain fields. Slots and pots
// are 0-based and -1 means none.
struct GameState {
    Board Beads{};

    // Sowing
    int16_t StartBeadCount = 3;
    int16_t CurrentPot = 0;
    int16_t MoverBank = ComputerBank;
    bool GameLive = false;

    // Turn cycle
    bool GameFinished = false;
    // From the start of ComputerMove to its return. Its pauses run other handlers
    // nested, and no second move may start in there.
    bool computerMoving = false;
    std::string Text1; // the picked pot, 1 to 6, on its way to HumanMove

    // Computer's selection
    Board SavedBeads{};
    int16_t ChosenPot = 0;

    // Narration
    bool PauseAtMoves = false;
    int16_t EntryNumber = 0;
    std::string LastEntryKey;
    int16_t WaitingForClick = 0;

    // Totals; index 1 is the computer, 2 the human, 0 unused.
    std::array<int16_t, 3> RunningTotals{};
    std::array<int16_t, 3> TotalsAtGameStart{};

    // Undo: slots 0..13, then RunningTotals[1] and [2].
    std::array<int16_t, 16> UndoBeads{};

    // Hint and forced turn
    bool BoardMirrored = false;
    bool HintActive = false;
    Board HintSavedBeads{};
    bool PauseAtMovesSaved = false;
    int16_t HintPot = 0;
    int16_t HintPotShown = NoSlot;

    // Board view, preview, keyboard
    int16_t HoverPot = NoSlot;
    bool PreviewActive = false;
    Board PreviewBeads{};
    int16_t KeyboardPot = NoSlot;
};
