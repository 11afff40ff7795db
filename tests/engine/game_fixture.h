#pragma once

#include "recording_screen.h"

#include <gtest/gtest.h>

#include <algorithm>

// A game as the window starts it, on a recording screen.
class GameTest : public ::testing::Test {
protected:
    GameTest()
    {
        screen.game = &game;
        game.Form_Load();
    }

    // Lays a position on the board and shows it, as if play had led there.
    void SetBoard(const std::string& board)
    {
        game.Beads = ParseBoard(board);
        game.UpdateBoard();
    }

    void Click(int16_t slot) { game.Pots_MouseUp(slot, 1, 0, 0, 0); }
    void Key(int16_t code) { game.Form_KeyDown(code, 0); }
    std::string Board() const { return FormatBoard(game.Beads); }
    std::vector<std::string> Log() const { return screen.LogTexts(); }

    // The log lines written since the two opening lines.
    std::vector<std::string> Moves() const
    {
        auto lines = Log();
        lines.erase(lines.begin(), lines.begin() + std::min<size_t>(2, lines.size()));
        return lines;
    }

    RecordingScreen screen;
    Game game{screen};
};
