#include "recording_screen.h"

#include "common/numbers.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace {

std::string flag(bool on)
{
    return on ? "1" : "0";
}

} // namespace

// The face's text is its Tag; an empty pot shows nothing, an empty bank "0".
void RecordingScreen::DrawPot(int16_t Pot, const std::string& Text)
{
    record("draw:" + std::to_string(Pot) + ":" + Text);
    if (!isSlot(Pot))
        return;
    tags[Pot] = numericRead(Text) == 0 && !isBank(Pot) ? std::string() : Text;
    hot[Pot] = false;
}

void RecordingScreen::DrawPotHot(int16_t Pot, const std::string& Text)
{
    record("hot:" + std::to_string(Pot) + ":" + Text);
    if (!isHumanPot(Pot) || numericRead(Text) == 0)
        return;
    tags[Pot] = Text;
    hot[Pot] = true;
}

void RecordingScreen::setPotEnabled(int16_t slot, bool enabled)
{
    record("enabled:" + std::to_string(slot) + ":" + flag(enabled));
    potEnabled.at(slot) = enabled;
}

void RecordingScreen::setMessCaption(const std::string& caption)
{
    record("mess:" + caption);
    messCaption = caption;
}

void RecordingScreen::setMessEnabled(bool enabled)
{
    record("messEnabled:" + flag(enabled));
    messEnabled = enabled;
}

void RecordingScreen::showMess()
{
    record("showMess");
    messVisible = true;
}

void RecordingScreen::setUndoxEnabled(bool enabled)
{
    record("undox:" + flag(enabled));
    undoxEnabled = enabled;
}

void RecordingScreen::setCommandFrameEnabled(bool enabled)
{
    record("frame:" + flag(enabled));
    commandFrameEnabled = enabled;
}

void RecordingScreen::setPausexCaption(const std::string& caption)
{
    record("pausex:" + caption);
    pausexCaption = caption;
}

void RecordingScreen::setStartBeadsEnabled(bool enabled)
{
    record("slider:" + flag(enabled));
    startBeadsEnabled = enabled;
}

// Like the real slider, a write that changes the value raises the change before it
// returns.
void RecordingScreen::setStartBeadsValue(int16_t value)
{
    record("sliderValue:" + std::to_string(value));
    if (value == startBeads)
        return;
    startBeads = value;
    if (onStartBeadsChange)
        onStartBeadsChange();
}

void RecordingScreen::moveSlider(int16_t value)
{
    if (value == startBeads)
        return;
    startBeads = value;
    if (onStartBeadsChange)
        onStartBeadsChange();
}

void RecordingScreen::setLabel2Caption(const std::string& caption)
{
    record("label2:" + caption);
    label2 = caption;
}

void RecordingScreen::setHandLeft(float left)
{
    record("handLeft:" + std::to_string(left));
    handLeft = left;
}

void RecordingScreen::setHandTop(float top)
{
    record("handTop:" + std::to_string(top));
    handTop = top;
}

void RecordingScreen::setHandVisible(bool visible)
{
    record("hand:" + flag(visible));
    handShown = visible;
}

void RecordingScreen::setTotalBCaption(int16_t index, const std::string& caption)
{
    record("total:" + std::to_string(index) + ":" + caption);
    totalB.at(index) = caption;
}

void RecordingScreen::setUpMovesList()
{
    record("setUpMovesList");
}

void RecordingScreen::movesListAdditem(std::string& s, int16_t itemx, int16_t& ipic,
                                       std::string& ItemFont, int32_t& ItemColor)
{
    record("add:" + s);
    if (itemx != -1 || ipic != -1 || !ItemFont.empty())
        throw std::logic_error("the log is always written on top, without picture or font");
    log.insert(log.begin(), {s, ItemColor});
}

void RecordingScreen::movesListAdditem(std::string& s, int16_t itemx)
{
    record("add:" + s);
    if (itemx != -1)
        throw std::logic_error("the log is always written on top");
    log.insert(log.begin(), {s, -1});
}

void RecordingScreen::movesListClear()
{
    record("clear");
    log.clear();
}

void RecordingScreen::scoreWin(bool value)
{
    record(value ? "score:win" : "score:loss");
    (value ? scoreWins : scoreLosses)++;
}

void RecordingScreen::scoreDraw(bool value)
{
    record("score:draw:" + flag(value));
    if (value)
        scoreDraws++;
}

void RecordingScreen::runPendingEvents()
{
    record("events");
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

std::vector<std::string> RecordingScreen::callsStartingWith(const std::string& prefix) const
{
    std::vector<std::string> picked;
    for (const auto& call : calls)
        if (call.starts_with(prefix))
            picked.push_back(call);
    return picked;
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
