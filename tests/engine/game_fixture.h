#pragma once

#include "recording_screen.h"

#include <gtest/gtest.h>

#include <algorithm>

// A game started as the window starts it, on a recording screen that releases every
// pause at once and raises the slider's change as the real one does.
class GameTest : public ::testing::Test {
protected:
    GameTest()
    {
        screen.onPendingEvents = [this] { game.Mess_Click(); };
        screen.onStartBeadsChange = [this] { game.StartBeads_Change(); };
        game.Form_Load();
    }

    // Lays a position on the board and shows it, as if play had led there.
    void setBoard(const std::string& board)
    {
        state.Beads = parseBoard(board);
        game.UpdateBoard();
    }

    void click(int16_t slot) { game.Pots_MouseUp(slot, 1, 0, 0, 0); }
    void key(int16_t code) { game.Form_KeyDown(code, 0); }
    void hintDown() { game.GiveHint_MouseDown(1, 0, 0, 0); }
    void hintUp() { game.GiveHint_MouseUp(1, 0, 0, 0); }
    std::string board() const { return formatBoard(state.Beads); }

    // The log lines written since the two opening lines.
    std::vector<std::string> moves() const
    {
        auto lines = screen.logTexts();
        lines.erase(lines.begin(), lines.begin() + std::min<size_t>(2, lines.size()));
        return lines;
    }

    // Every way a user could start a move or change the board; none may get through
    // while a move runs or a hint is held.
    void expectNoMoveStarts()
    {
        const auto beads = state.Beads;
        const auto lines = screen.log.size();
        const auto count = state.StartBeadCount;
        click(1);
        game.Pots_MouseDown(2, 2, 0, 0, 0);
        game.Pots_MouseUp(2, 2, 0, 0, 0);
        state.KeyboardPot = 0;
        key(KeyEnter);
        game.Undox_Click();
        game.TakeComp_Click();
        hintDown();
        screen.moveSlider(static_cast<int16_t>(count + 1));
        EXPECT_EQ(state.Beads, beads);
        EXPECT_EQ(screen.log.size(), lines);
        EXPECT_EQ(state.StartBeadCount, count);
        EXPECT_EQ(screen.startBeads, count) << "the slider goes back";
        EXPECT_FALSE(state.PreviewActive);
    }

    RecordingScreen screen;
    Game game{screen};
    GameState& state = game.stateForTests();
};
