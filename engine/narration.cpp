#include "engine/game.h"

#include "common/numbers.h"

#include <cstdio>

void Game::ListMove(int16_t Side, const std::string& Text)
{
    if (Text.empty())
        return;
    const std::string key = numberText(Side) + Text;
    if (key == LastEntryKey)
        return;
    // Of a run of hint lines only the first is listed: the further passes of a hint,
    // and a second hint before anything else was listed, are dropped.
    if (Text.starts_with("HINT") && LastEntryKey.find("HINT") != std::string::npos)
        return;

    if (Side == SideHint) {
        logLine(Text, HintBlack);
    } else {
        EntryNumber = clampCount(EntryNumber + 1);
        char number[16];
        std::snprintf(number, sizeof number, "#%03d>", static_cast<int>(EntryNumber));
        const std::string entry = number + Text;
        if (Side != SideComputer) {
            logLine(entry, HumanGreen);
        } else {
            if (PauseAtMoves)
                pause(Text);
            m_screen.setMessEnabled(false);
            m_screen.setCommandFrameEnabled(true);
            // A paused step reaches the list after the click, not before.
            logLine(entry, ComputerRed);
        }
    }
    LastEntryKey = key;
}

// Holds a step of the computer's move on the message bar until Mess is clicked.
// Other handlers run inside this loop; the commands that could start a second move
// are shut away in CommandFrame meanwhile.
void Game::pause(const std::string& Text)
{
    m_screen.setMessCaption("Computer move> " + Text + "; click to continue");
    WaitingForClick = 1;
    m_screen.setMessEnabled(true);
    m_screen.setCommandFrameEnabled(false);
    while (WaitingForClick != 0)
        m_screen.runPendingEvents();
}

void Game::logLine(std::string s, int32_t color)
{
    int16_t ipic = -1;
    std::string font;
    m_screen.movesListAdditem(s, -1, ipic, font, color);
}
