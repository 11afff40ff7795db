#include "recording_screen.h"

#include "common/numbers.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

// The face's text is its Tag; an empty pot shows nothing, an empty bank "0".
void RecordingScreen::DrawPot(int16_t Pot, const std::string& Text)
{
    calls.push_back("draw:" + std::to_string(Pot) + ":" + Text);
    if (!isSlot(Pot))
        return;
    tags[Pot] = numericRead(Text) == 0 && !isBank(Pot) ? std::string() : Text;
    hot[Pot] = false;
}

void RecordingScreen::DrawPotHot(int16_t Pot, const std::string& Text)
{
    calls.push_back("hot:" + std::to_string(Pot) + ":" + Text);
    if (!isHumanPot(Pot) || numericRead(Text) == 0)
        return;
    tags[Pot] = Text;
    hot[Pot] = true;
}

void RecordingScreen::moveSlider(int16_t value)
{
    if (value == startBeads)
        return;
    startBeads = value;
    if (onStartBeadsChange)
        onStartBeadsChange();
}

void RecordingScreen::movesListAdditem(std::string& s, int16_t itemx, int16_t& ipic,
                                       std::string& ItemFont, int32_t& ItemColor)
{
    calls.push_back("add:" + s);
    if (itemx != -1 || ipic != -1 || !ItemFont.empty())
        throw std::logic_error("the log is always written on top, without picture or font");
    log.insert(log.begin(), {s, ItemColor});
}

void RecordingScreen::movesListAdditem(std::string& s, int16_t itemx)
{
    calls.push_back("add:" + s);
    if (itemx != -1)
        throw std::logic_error("the log is always written on top");
    log.insert(log.begin(), {s, -1});
}

void RecordingScreen::movesListClear()
{
    calls.push_back("clear");
    log.clear();
}

void RecordingScreen::scoreWin(bool value)
{
    calls.push_back(value ? "score:win" : "score:loss");
    (value ? scoreWins : scoreLosses)++;
}

void RecordingScreen::scoreDraw(bool value)
{
    calls.push_back("score:draw");
    scoreDraws += value;
}

void RecordingScreen::runPendingEvents()
{
    calls.push_back("events");
    // A pause that nobody releases would hang the test run.
    if (++pendingEventRuns > 10000)
        throw std::runtime_error("a pause was never released");
    if (onPendingEvents)
        onPendingEvents();
}

std::vector<std::string> RecordingScreen::logTexts() const
{
    std::vector<std::string> texts;
    for (auto it = log.rbegin(); it != log.rend(); ++it)
        texts.push_back(it->text);
    return texts;
}

Board parseBoard(const std::string& text)
{
    std::string spaced = text;
    std::replace(spaced.begin(), spaced.end(), '|', ' ');
    std::istringstream in(spaced);
    Board board{};
    for (auto& slot : board)
        if (!(in >> slot))
            throw std::invalid_argument("a board needs 14 counts: " + text);
    return board;
}

std::string formatBoard(const Board& board)
{
    std::ostringstream out;
    for (int s = 0; s < SlotCount; ++s)
        out << (isBank(s) ? "|" : "") << board[s] << (s == HumanBank ? "| " : s < 13 ? " " : "");
    return out.str();
}
