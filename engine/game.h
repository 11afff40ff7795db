#pragma once

#include "engine/game_screen.h"
#include "engine/game_state.h"

#include <cstdint>
#include <string>

// The game of Form1: its state and every procedure of the rules and the turn cycle.
// It reaches the screen only through GameScreen.
class Game : public GameState {
public:
    explicit Game(GameScreen& screen) : screen_(screen) {}

    // Sowing (sowing.cpp)
    std::string PotLetter(int16_t Pot) const;
    static std::string StrCount(int16_t N);
    void SowPot(int16_t Pot);
    bool CaptureHolds() const;
    void CheckRows();
    void SwapSides();

    // Turn cycle (controller.cpp)
    void Pots_MouseUp(int16_t Index, int16_t Button, int16_t Shift, float X, float Y);
    void HumanMove(int16_t& Result);
    void NewGame();
    void Mess_Click();
    void Form_Load();
    void ResetForLoad();
    void LogOpeningLines();
    void LayOutBoard(int16_t Count);
    void ReplyAndHandBack(const std::string& caption);

    // The computer player (computer_move.cpp)
    void ComputerMove();
    int EvaluatePot(int16_t Pot);

    // Narration (narration.cpp)
    void ListMove(int16_t Side, const std::string& Text);

    // End of game and totals (end_game.cpp)
    void UpdateBoard();
    void EndGame();

    // Undo (undo.cpp)
    void TakeUndoSnapshot();
    void Undox_Click();

    // Hint and forced turn (hint.cpp)
    void TakeComp_Click();
    void GiveHint_MouseDown(int16_t Button, int16_t Shift, float X, float Y);
    void GiveHint_MouseUp(int16_t Button, int16_t Shift, float X, float Y);

    // Keyboard play (keyboard.cpp)
    void Form_KeyDown(int16_t KeyCode, int16_t Shift);

    // A second move must never start inside a running one: while a pause waits or
    // a hint is held, pot events, Enter and the slider are turned away.
    bool Busy() const { return WaitingForClick != 0 || HintActive; }

private:
    int16_t CreditCapture();
    void ClearCapturedPots();
    int16_t MoveSide() const;
    void PlayChosenPot();
    void ShowHintPass();
    void Pause(const std::string& Text);
    void LogLine(std::string s, int32_t color);
    void WriteTotals();

    GameScreen& screen_;
};

// Key codes the game understands.
constexpr int16_t KeyEnter = 13;

// Sides of a log entry.
constexpr int16_t SideHuman = 1;
constexpr int16_t SideComputer = 2;
constexpr int16_t SideHint = -1;
