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
    void HintDown() { game.GiveHint_MouseDown(1, 0, 0, 0); }
    void HintUp() { game.GiveHint_MouseUp(1, 0, 0, 0); }
    std::string Board() const { return FormatBoard(game.Beads); }

    // The log lines written since the two opening lines.
    std::vector<std::string> Moves() const
    {
        auto lines = screen.LogTexts();
        lines.erase(lines.begin(), lines.begin() + std::min<size_t>(2, lines.size()));
        return lines;
    }

    // Every way a user could start a move; none may get through while a move runs.
    void ExpectNoMoveStarts()
    {
        const auto board = game.Beads;
        const auto lines = screen.log.size();
        Click(1);
        game.Pots_MouseUp(2, 2, 0, 0, 0);
        game.KeyboardPot = 0;
        Key(KeyEnter);
        game.Undox_Click();
        game.TakeComp_Click();
        HintDown();
        EXPECT_EQ(game.Beads, board);
        EXPECT_EQ(screen.log.size(), lines);
    }

    RecordingScreen screen;
    Game game{screen};
};
