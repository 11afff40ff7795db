#pragma once

#include "engine/game_screen.h"
#include "engine/game_state.h"

#include <cstdint>
#include <string>

// The game of Form1: its state and every procedure and handler of the rules, the turn
// cycle and the board's input. It is the one owner of GameState: everybody else reads
// it through state(), and it reaches the screen only through GameScreen.
class Game : private GameState {
public:
    explicit Game(GameScreen& screen) : m_screen(screen) {}

    const GameState& state() const { return *this; }
    // Tests, fuzz targets and benchmarks lay positions through this; the window never
    // writes the game's state.
    GameState& stateForTests() { return *this; }

    // Start and restart (controller.cpp)
    void Form_Load();
    void NewGame();
    void Mess_Click();

    // A human move and the turn around it (controller.cpp)
    void Pots_MouseUp(int16_t Index, int16_t Button, int16_t Shift, float X, float Y);
    void HumanMove(int16_t& Result);

    // Sowing (sowing.cpp)
    std::string PotLetter(int16_t Pot) const;
    static std::string StrCount(int16_t N);
    void SowPot(int16_t Pot);
    bool captureHolds() const;
    void CheckRows();
    void SwapSides();

    // The computer player (computer_move.cpp)
    void ComputerMove();
    int evaluatePot(int16_t Pot);

    // Narration (narration.cpp)
    void ListMove(int16_t Side, const std::string& Text);

    // The board shown, the end of a game (end_game.cpp)
    void RefreshPot(int16_t Slot);
    void UpdateBoard();
    void EndGame();

    // Undo (undo.cpp)
    void Undox_Click();

    // Hint and forced turn (hint.cpp)
    void TakeComp_Click();
    void GiveHint_MouseDown(int16_t Button, int16_t Shift, float X, float Y);
    void GiveHint_MouseUp(int16_t Button, int16_t Shift, float X, float Y);

    // The mouse over the board, the preview, the keys (board_input.cpp)
    void Pots_MouseMove(int16_t Index, int16_t Button, int16_t Shift, float X, float Y);
    void Form_MouseMove(int16_t Button, int16_t Shift, float X, float Y);
    void Pots_MouseDown(int16_t Index, int16_t Button, int16_t Shift, float X, float Y);
    void Form_KeyDown(int16_t KeyCode, int16_t Shift);

    // The slider and the pause button (board_input.cpp)
    void StartBeads_Change();
    void Pausex_Click();

    // A second move must never start inside a running one: while the computer moves
    // (its pauses run other handlers) or a hint is held, pot events, Enter, the slider,
    // undo, the forced turn, the hint and the preview are turned away.
    bool busy() const { return computerMoving || HintActive; }

private:
    void layOutBoard(int16_t count);
    void replyAndHandBack(const std::string& caption);
    int16_t creditCapture();
    void clearCapturedPots();
    int16_t moveSide() const;
    void selectAndPlay();
    void playChosenPot();
    void showHintPass();
    void pause(const std::string& Text);
    void logLine(std::string s, int32_t color);
    void writeTotals();
    void takeUndoSnapshot();

    GameScreen& m_screen;
};

// Key codes the game understands.
constexpr int16_t KeyEnter = 13;

// Sides of a log entry.
constexpr int16_t SideHuman = 1;
constexpr int16_t SideComputer = 2;
constexpr int16_t SideHint = -1;
