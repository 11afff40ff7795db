#include "recording_screen.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

void RecordingScreen::RefreshPot(int16_t Slot)
{
    const int16_t n = game->Beads.at(Slot);
    std::string face = std::to_string(n);
    if (n == 0 && !IsBank(Slot))
        face.clear();
    tags.at(Slot) = face;
    calls.push_back("refresh:" + std::to_string(Slot));
    if (!IsHumanPot(Slot))
        return;
    potEnabled[Slot] = !(n == 0 && !game->HintActive);
}

void RecordingScreen::SetMessCaption(const std::string& Caption)
{
    messCaption = Caption;
    calls.push_back("mess:" + Caption);
}

void RecordingScreen::SetTotalBCaption(int16_t Index, const std::string& Caption)
{
    totalB.at(Index) = Caption;
}

void RecordingScreen::MovesList_Additem(std::string& s, int16_t itemx, int16_t& ipic,
                                        std::string& ItemFont, int32_t& ItemColor)
{
    if (itemx != -1 || ipic != -1 || !ItemFont.empty())
        throw std::logic_error("the log is always written on top, without picture or font");
    log.insert(log.begin(), {s, ItemColor});
    calls.push_back("add:" + s);
}

void RecordingScreen::MovesList_Additem(std::string& s, int16_t itemx)
{
    if (itemx != -1)
        throw std::logic_error("the log is always written on top");
    log.insert(log.begin(), {s, -1});
    calls.push_back("add:" + s);
}

void RecordingScreen::MovesList_Clear()
{
    log.clear();
    calls.push_back("clear");
}

void RecordingScreen::Score1_ScoreWin(bool Value)
{
    (Value ? scoreWins : scoreLosses)++;
    calls.push_back(Value ? "score:win" : "score:loss");
}

void RecordingScreen::Score1_ScoreDraw(bool Value)
{
    if (Value)
        scoreDraws++;
    calls.push_back("score:draw");
}

void RecordingScreen::DoEvents()
{
    calls.push_back("doevents");
    // A pause that nobody releases would hang the test run.
    if (++doEventsCalls > 10000)
        throw std::runtime_error("a pause was never released");
    if (onDoEvents)
        onDoEvents();
    else
        const_cast<Game*>(game)->Mess_Click();
}

std::vector<std::string> RecordingScreen::LogTexts() const
{
    std::vector<std::string> texts;
    for (auto it = log.rbegin(); it != log.rend(); ++it)
        texts.push_back(it->text);
    return texts;
}

std::vector<std::string> RecordingScreen::CallsStartingWith(const std::string& prefix) const
{
    std::vector<std::string> picked;
    for (const auto& call : calls)
        if (call.starts_with(prefix))
            picked.push_back(call);
    return picked;
}

Board ParseBoard(const std::string& text)
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

std::string FormatBoard(const Board& board)
{
    std::ostringstream out;
    for (int s = 0; s < SlotCount; ++s)
        out << (IsBank(s) ? "|" : "") << board[s] << (s == HumanBank ? "| " : s < 13 ? " " : "");
    return out.str();
}
