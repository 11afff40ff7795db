#pragma once

#include <cstdint>
#include <string>

// What the game needs of the window, and nothing more: one operation per thing the
// game shows or reads back. The real window implements it with widgets; the tests
// implement it with a recording fake.
class GameScreen {
public:
    virtual ~GameScreen() = default;

    // Pots: the face of one pot from a text, the hover look, the Tag (the count the
    // face shows), and whether the pot takes the mouse.
    virtual void DrawPot(int16_t Pot, const std::string& Text) = 0;
    virtual void DrawPotHot(int16_t Pot, const std::string& Text) = 0;
    virtual std::string potTag(int16_t index) const = 0;
    virtual void setPotEnabled(int16_t slot, bool enabled) = 0;

    // The message bar Mess.
    virtual void setMessCaption(const std::string& caption) = 0;
    virtual void setMessEnabled(bool enabled) = 0;
    virtual void showMess() = 0;

    virtual void setUndoxEnabled(bool enabled) = 0;
    virtual void setCommandFrameEnabled(bool enabled) = 0;
    virtual void setPausexCaption(const std::string& caption) = 0;

    // The slider StartBeads and its label. A write that changes the value raises
    // StartBeads_Change before it returns, as a move by the user does.
    virtual void setStartBeadsEnabled(bool enabled) = 0;
    virtual int16_t startBeadsValue() const = 0;
    virtual void setStartBeadsValue(int16_t value) = 0;
    virtual void setLabel2Caption(const std::string& caption) = 0;

    // The hint's pointing hand and the letter labels it stands over, in twips.
    virtual void setHandLeft(float left) = 0;
    virtual void setHandTop(float top) = 0;
    virtual void setHandVisible(bool visible) = 0;
    virtual bool handVisible() const = 0;
    virtual float potNameLeft(int16_t index) const = 0;
    virtual float potNameTop(int16_t index) const = 0;

    // TotalB(1) is the computer's total, TotalB(2) the human's.
    virtual void setTotalBCaption(int16_t index, const std::string& caption) = 0;

    // The log: its look, set once at the start, and its lines, newest on top.
    virtual void setUpMovesList() = 0;
    // MovesList.Additem with all five arguments; ipic and ItemColor come back as the
    // list settled them.
    virtual void movesListAdditem(std::string& s, int16_t itemx, int16_t& ipic,
                                  std::string& ItemFont, int32_t& ItemColor) = 0;
    // MovesList.Additem with the text and position only: the list picks the colour.
    virtual void movesListAdditem(std::string& s, int16_t itemx) = 0;
    virtual void movesListClear() = 0;

    virtual void scoreWin(bool value) = 0;
    virtual void scoreDraw(bool value) = 0;

    // Runs what is pending in the window once; the pause of a computer's move waits
    // by repeating it, and other handlers run inside it.
    virtual void runPendingEvents() = 0;
};
